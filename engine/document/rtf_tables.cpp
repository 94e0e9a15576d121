#include "engine/document/rtf_tables.h"

#include "engine/document/rtf_formats.h"

#include <algorithm>
#include <iterator>

namespace wordhawk {
namespace {

constexpr std::size_t kMostFontsRead = 10'000;
constexpr std::size_t kMostColoursRead = 10'000;
/// The rich text box looks its entries up one by one.
constexpr std::size_t kMostWritten = 1'000;
constexpr std::size_t kLongestFace = 31;

constexpr std::string_view kFamilies[] = {"fnil",    "froman", "fswiss", "fmodern",
                                          "fscript", "fdecor", "ftech",  "fbidi"};

struct Component {
    std::string_view word;
    int shift;
};
constexpr Component kComponents[] = {{"red", 16}, {"green", 8}, {"blue", 0}};

}  // namespace

void WriteRtfText(std::wstring_view text, std::string& out) {
    for (const wchar_t c : text) {
        if (c == L'\\' || c == L'{' || c == L'}') out += '\\';
        if (c >= 0x20 && c < 0x7F) {
            out += static_cast<char>(c);
        } else {
            const int unit = static_cast<int>(c) & 0xFFFF;
            WriteWord("u", unit > 0x7FFF ? unit - 0x10000 : unit, out);
            out += '?';
        }
    }
}

// ---- fonts ----

RtfFonts::RtfFonts(std::wstring_view default_face) {
    default_.name = default_face.substr(0, kLongestFace);
}

bool RtfFonts::Take(const RtfToken& word) {
    if (word.text == "f") {
        const bool room = read_.size() < kMostFontsRead || read_.contains(word.number);
        current_ = room && word.number >= 0 && !word.out_of_range ? &read_[word.number] : nullptr;
        if (current_ != nullptr) *current_ = {};
        name_complete_ = false;
    } else if (current_ == nullptr) {
        return false;
    } else if (word.text == "fcharset") {
        current_->charset = std::clamp(word.number, 0, 255);
    } else {
        const auto* family = std::find(std::begin(kFamilies), std::end(kFamilies), word.text);
        if (family == std::end(kFamilies)) return false;
        current_->family = static_cast<int>(family - std::begin(kFamilies));
    }
    return true;
}

void RtfFonts::TakeText(std::wstring_view text) {
    if (current_ == nullptr) return;
    for (const wchar_t c : text) {
        if (c == L';') name_complete_ = true;
        if (name_complete_ || c < 0x20 || current_->name.size() == kLongestFace) continue;
        current_->name += c;
    }
}

const RtfFonts::Font& RtfFonts::Find(int number) const {
    for (const int wanted : {number, default_number_}) {
        const auto found = read_.find(wanted);
        if (found != read_.end() && !found->second.name.empty()) return found->second;
    }
    return default_;
}

int RtfFonts::Charset(int number) const { return Find(number).charset; }

int RtfFonts::Use(int number) {
    const Font& font = Find(number);
    const auto found = written_number_.find(font);
    if (found != written_number_.end()) return found->second;
    if (written_.size() == kMostWritten) return 0;
    const int written = static_cast<int>(written_.size());
    written_.push_back(font);
    written_number_.emplace(font, written);
    return written;
}

void RtfFonts::Write(std::string& out) const {
    out += "{\\fonttbl";
    for (std::size_t i = 0; i < written_.size(); ++i) {
        const Font& font = written_[i];
        WriteWord("f", static_cast<int>(i), out.append("{"));
        out.append("\\").append(kFamilies[font.family]);
        if (font.charset != 1) WriteWord("fcharset", font.charset, out);
        out += ' ';
        WriteRtfText(font.name, out);
        out += ";}";
    }
    out += '}';
}

// ---- colours ----

bool RtfColours::Take(const RtfToken& word) {
    for (const Component& component : kComponents) {
        if (word.text != component.word) continue;
        const auto value = static_cast<std::uint32_t>(std::clamp(word.number, 0, 255));
        const std::uint32_t mask = 0xFFu << component.shift;
        current_ = (current_.value_or(0) & ~mask) | value << component.shift;
        return true;
    }
    return false;
}

void RtfColours::TakeText(std::string_view text) {
    for (const char c : text) {
        if (c != ';' || read_.size() == kMostColoursRead) continue;
        read_.push_back(current_);
        current_.reset();
    }
}

int RtfColours::Use(int number) {
    const auto index = static_cast<std::size_t>(number);
    if (number < 0 || index >= read_.size() || !read_[index]) return 0;
    const std::uint32_t colour = *read_[index];
    const auto found = written_number_.find(colour);
    if (found != written_number_.end()) return found->second;
    if (written_.size() == kMostWritten) return 0;
    written_.push_back(colour);
    const int written = static_cast<int>(written_.size());
    written_number_.emplace(colour, written);
    return written;
}

void RtfColours::Write(std::string& out) const {
    out += "{\\colortbl;";
    for (const std::uint32_t colour : written_) {
        for (const Component& component : kComponents) {
            WriteWord(component.word, static_cast<int>(colour >> component.shift & 0xFF), out);
        }
        out += ';';
    }
    out += '}';
}

}  // namespace wordhawk
