#include "engine/check/known_addresses.h"

#include <algorithm>
#include <bit>

namespace wordhawk {
namespace {

/// The number above `low` and up to `high` that ends in the most zero bits. Of all lengths between
/// a node and its parent this one is the node's handle: halving an interval by such numbers meets
/// the handle of every node on the way.
std::size_t Fattest(std::size_t low, std::size_t high) {
    const int differing = std::bit_width(low ^ high) - 1;
    return high & (~std::size_t{0} << differing);
}

std::uint64_t HandleKey(std::uint64_t hash, std::size_t length) {
    return hash ^ (length * 0x9E3779B97F4A7C15u);
}

}  // namespace

std::uint32_t KnownAddresses::DeepestAt(const StretchHashes& text, std::size_t at,
                                        std::size_t most) const {
    std::uint32_t deepest = 0;
    std::size_t low = 0;
    std::size_t high = std::min(most, longest_);
    while (low < high) {
        const std::size_t length = Fattest(low, high);
        const auto found = handles_.find(HandleKey(text.Of(at, length), length));
        if (found == handles_.end()) {
            high = length - 1;
            continue;
        }
        const Node& node = nodes_[found->second];
        // The text goes into the node's edge; when not through it, the node above is the deepest.
        if (node.length > most || text.Of(at, node.length) != node.hash) return node.parent;
        deepest = found->second;
        low = node.length;
    }
    return deepest;
}

std::optional<KnownAddresses::Match> KnownAddresses::EarliestAt(const StretchHashes& text,
                                                                std::size_t at,
                                                                std::size_t most) const {
    const std::uint32_t number = nodes_[DeepestAt(text, at, most)].address;
    if (number == kNone) return std::nullopt;
    return Match{number, addresses_[number].length};
}

std::wstring_view KnownAddresses::Address(std::uint32_t number) const {
    const Place& place = addresses_[number];
    return std::wstring_view(text_).substr(place.at, place.length);
}

void KnownAddresses::Add(std::wstring_view address) {
    const std::size_t at = text_.size();
    const auto number = static_cast<std::uint32_t>(addresses_.size());
    text_ += address;
    hashes_.Append(address);
    addresses_.push_back({at, address.size()});
    longest_ = std::max(longest_, address.size());

    std::uint32_t node = 0;
    while (nodes_[node].length < address.size()) {
        const std::size_t from = nodes_[node].length;
        const auto step = steps_.find(StepKey(node, address[from]));
        if (step == steps_.end()) {
            node = MakeNode(at, address.size(), node);
            break;
        }
        const Node& below = nodes_[step->second];
        const std::size_t end = std::min(below.length, address.size());
        std::size_t equal = from + 1;
        while (equal < end && text_[below.at + equal] == address[equal]) ++equal;
        node = equal == below.length ? step->second : MakeNodeAbove(step->second, equal);
    }
    MarkDown(node, number);
}

std::uint32_t KnownAddresses::MakeNode(std::size_t at, std::size_t length, std::uint32_t parent) {
    const auto made = static_cast<std::uint32_t>(nodes_.size());
    nodes_.push_back({at, length, hashes_.Of(at, length), parent, nodes_[parent].address});
    Link(made);
    SetHandle(made);
    return made;
}

std::uint32_t KnownAddresses::MakeNodeAbove(std::uint32_t lower, std::size_t length) {
    Unlink(lower);
    const std::uint32_t made = MakeNode(nodes_[lower].at, length, nodes_[lower].parent);
    nodes_[lower].parent = made;
    Link(lower);
    // It keeps its handle, or has lost it to the new node and gets another one.
    SetHandle(lower);
    return made;
}

void KnownAddresses::Link(std::uint32_t node) {
    Node& linked = nodes_[node];
    Node& parent = nodes_[linked.parent];
    steps_[StepKey(linked.parent, text_[linked.at + parent.length])] = node;
    linked.previous = kNone;
    linked.next = parent.first_child;
    if (linked.next != kNone) nodes_[linked.next].previous = node;
    parent.first_child = node;
}

void KnownAddresses::Unlink(std::uint32_t node) {
    const Node& unlinked = nodes_[node];
    if (unlinked.next != kNone) nodes_[unlinked.next].previous = unlinked.previous;
    if (unlinked.previous != kNone) {
        nodes_[unlinked.previous].next = unlinked.next;
    } else {
        nodes_[unlinked.parent].first_child = unlinked.next;
    }
}

void KnownAddresses::SetHandle(std::uint32_t node) {
    const Node& named = nodes_[node];
    const std::size_t length = Fattest(nodes_[named.parent].length, named.length);
    handles_[HandleKey(hashes_.Of(named.at, length), length)] = node;
}

/// Gives the number to the node and to all below it that begin with no address yet.
void KnownAddresses::MarkDown(std::uint32_t node, std::uint32_t number) {
    std::vector<std::uint32_t> waiting = {node};
    while (!waiting.empty()) {
        Node& marked = nodes_[waiting.back()];
        waiting.pop_back();
        marked.address = number;
        for (std::uint32_t child = marked.first_child; child != kNone; child = nodes_[child].next) {
            if (nodes_[child].address == kNone) waiting.push_back(child);
        }
    }
}

}  // namespace wordhawk
