#include "lang/built_in_texts.h"

#include <algorithm>

namespace wordhawk {
namespace {

struct BuiltIn {
    int id;
    std::wstring_view text;
};

#define BUILT_IN_TEXT(id, name, text) {id, L"" text},
constexpr BuiltIn kTexts[] = {
#include "lang/built_in_texts.inc"
#include "lang/own_texts.inc"
};
#undef BUILT_IN_TEXT

static_assert(std::adjacent_find(std::begin(kTexts), std::end(kTexts),
                                 [](const BuiltIn& a, const BuiltIn& b) { return a.id >= b.id; }) ==
                  std::end(kTexts),
              "ids must ascend without repeats");

}  // namespace

std::wstring_view BuiltInText(int id) {
    const auto before = [](const BuiltIn& entry, int wanted) { return entry.id < wanted; };
    const auto* found = std::lower_bound(std::begin(kTexts), std::end(kTexts), id, before);
    return found != std::end(kTexts) && found->id == id ? found->text : std::wstring_view();
}

}  // namespace wordhawk
