#pragma once

/// The number of every text, by name: one constant for each line of the two tables. A language file
/// may hold any of them.
namespace wordhawk::text_id {

#define BUILT_IN_TEXT(id, name, text) inline constexpr int name = id;
#include "lang/built_in_texts.inc"
#include "lang/own_texts.inc"
#undef BUILT_IN_TEXT

}  // namespace wordhawk::text_id
