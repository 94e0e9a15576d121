#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace wordhawk {

/// Numbers of the texts that the windows show: below 1000 those of the language files, above them
/// our own.
namespace text_id {
inline constexpr int kAdd = 105, kAddAll = 106, kCust = 114, kCancel = 115, kChange = 121,
                     kChangeAll = 122, kCopy = 127, kCopyData = 128, kCopyWord = 129, kCut = 132,
                     kCustomDictionaries = 135, kDelete = 137, kIgnoreAll = 157, kIgnore = 158,
                     kNotInDictionary = 176, kOpen = 178, kOptions = 180, kPaste = 182,
                     kPreferences = 188, kRemoveWord = 193, kSaveAs = 198, kScore = 200,
                     kChangeTo = 202, kSelectAll = 203, kSpellCheck = 206, kCheckComplete = 207,
                     kSpellingCheck = 209, kSuggestions = 215, kUndo = 226;

inline constexpr int kDocument = 1001, kRecentChanges = 1002;

inline constexpr int kTipChange = 1011, kTipChangeAll = 1012, kTipIgnore = 1013,
                     kTipIgnoreAll = 1014, kTipAddMain = 1015, kTipAddAllMain = 1016,
                     kTipAddCustom = 1017, kTipAddAllCustom = 1018, kTipSuggestions = 1019,
                     kTipSpellCheck = 1020, kTipOptions = 1021, kTipCancel = 1022,
                     kTipCopyData = 1023, kTipOpen = 1024, kTipSaveAs = 1025,
                     kTipPreferences = 1026, kTipWord = 1027, kTipNotFound = 1028, kTipScore = 1029,
                     kTipDiversity = 1030, kTipCustomDictionaries = 1031, kTipUndoAdd = 1032;

inline constexpr int kSearchBySound = 1041, kSearchByAny = 1042, kSearchByCloseSound = 1043,
                     kCountSwaps = 1044, kCopyList = 1045;

inline constexpr int kCannotRead = 1051, kCannotWrite = 1052, kCannotWriteDictionary = 1053,
                     kWrongFileType = 1054, kClipboardInUse = 1056, kFileMissing = 1057;

inline constexpr int kAdded = 1061, kAlreadyThere = 1062, kTookOut = 1063, kNoUnknownWords = 1064,
                     kOneUnknownWord = 1065, kUnknownWords = 1066, kCheckCancelled = 1067,
                     kNoDictionary = 1068, kSaved = 1069, kRemoved = 1070, kNotRemoved = 1071,
                     kChanged = 1072, kKeptUnsaved = 1073, kAddedWords = 1074;

inline constexpr int kSuggestionTip = 1081, kTextFiles = 1082, kRtfFiles = 1083;
}  // namespace text_id

/// `text` with %1, %2 ... replaced by the values in their order.
std::wstring Filled(std::wstring_view text, std::initializer_list<std::wstring_view> values);

}  // namespace wordhawk
