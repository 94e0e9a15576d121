#include "platform/temporary_name.h"

#include <random>

namespace wordhawk {
namespace {

constexpr std::wstring_view kBeginning = L".wordhawk-";
constexpr std::wstring_view kEnd = L".tmp";
constexpr int kLetters = 16;

}  // namespace

std::wstring TemporaryName() {
    // Five bits a letter, from the system's own source.
    constexpr std::wstring_view kAlphabet = L"abcdefghijklmnopqrstuvwxyz234567";
    std::random_device source;
    std::wstring name(kBeginning);
    for (int i = 0; i < kLetters; ++i) name += kAlphabet[source() % kAlphabet.size()];
    return name.append(kEnd);
}

bool IsTemporaryName(std::wstring_view name) {
    return name.size() > kBeginning.size() + kEnd.size() && name.starts_with(kBeginning) &&
           name.ends_with(kEnd);
}

}  // namespace wordhawk
