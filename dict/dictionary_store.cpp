#include "dict/dictionary_store.h"

#include "dict/dictionary_names.h"
#include "dict/phonetic_key.h"
#include "dict/sorted_lines.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace wordhawk {
namespace {

constexpr std::wstring_view kDefaultCustomName = L"CUSTOM.DIC";

bool IsSameFile(const Path& a, const Path& b) {
    if (a.native() == b.native()) return true;
    if (!EqualIgnoringCase(TextFromPath(a.filename()), TextFromPath(b.filename()))) return false;
    std::error_code failed;
    return std::filesystem::equivalent(a, b, failed) && !failed;
}

}  // namespace

DictionaryStore::DictionaryStore(ProgramState& state, Settings& settings)
    : state_(state), settings_(settings) {}

bool DictionaryStore::IsWordInDictionaries(std::wstring_view word, Scope scope) {
    if (word.empty()) return false;
    SyncWithState();
    const AnsiCodePage& page = Page();
    lower_bytes_.resize(word.size());
    std::transform(word.begin(), word.end(), lower_bytes_.begin(),
                   [&page](wchar_t c) { return static_cast<char>(page.ToByte(LowerChar(c))); });
    const wchar_t initial = LowerChar(word[0]);
    if (IsInMainFiles(initial)) return true;
    if (IsInPackExtras(lower_bytes_, initial != word[0])) return true;
    return scope == Scope::MainAndCustom && IsInCustomFiles(lower_bytes_);
}

bool DictionaryStore::IsInMainFiles(wchar_t initial) {
    const bool outside = IsOutsideSingleBytes(initial, Page());
    const bool plain = lower_bytes_.find_first_of(",\r\n") == std::string::npos;
    if (!outside && plain && lower_bytes_.size() > 1)
        return IsInFileOrTable(lower_bytes_, DictionaryFile::HashBytes(lower_bytes_));
    const auto first = static_cast<unsigned char>(lower_bytes_[0]);
    const DictionaryFile& file =
        outside ? LoadMain(MainPathFor(std::wstring_view(&initial, 1))).file
                : MainFileOfBytes(first, lower_bytes_.size() > 1
                                             ? static_cast<unsigned char>(lower_bytes_[1])
                                             : first);
    return file.Contains(lower_bytes_, EntryForms::KeyedOnly);
}

bool DictionaryStore::IsWordInCustomDictionaries(std::wstring_view word) {
    return !word.empty() && IsInCustomFiles(Page().Encode(Lower(word)));
}

bool DictionaryStore::IsInPackExtras(std::string_view lower_bytes, bool has_capital) {
    if (!extras_) extras_.emplace(state_.LanguageDictFolder, unreadable_);
    const bool words_stay_whole = settings_.LettersStay != 0 && settings_.StraightApostrophe != 0;
    if (!words_stay_whole && extras_->IsPiece(lower_bytes)) return true;
    return settings_.Compounds != 0 && extras_->IsCompound(lower_bytes, has_capital);
}

bool DictionaryStore::IsInCustomFiles(std::string_view lower_bytes) {
    SyncCustomSet();
    return std::any_of(custom_.begin(), custom_.end(), [&](Custom& custom) {
        return LoadCustom(custom).file.Contains(lower_bytes, EntryForms::KeyedAndBare);
    });
}

void DictionaryStore::SyncWithState() {
    if (table_page_ == state_.CodePage && table_folder_ == state_.LanguageDictFolder.native())
        return;
    for (std::unique_ptr<Row>& row : by_first_bytes_) row.reset();
    extras_.reset();
    table_.reset();
    tabled_.reset();
    opens_before_table_ = kOpensBeforeTable;
    table_page_ = state_.CodePage;
    table_folder_ = state_.LanguageDictFolder.native();
}

bool DictionaryStore::TakeFromTable(unsigned char first, unsigned char second) {
    SyncWithState();
    if (!table_) {
        if (!table_source_ || opens_before_table_ < 0 || opens_before_table_-- > 0) return false;
        table_ = table_source_(state_);
        if (!table_) return false;
    }
    const Path path = MainPathOfBytes(first, second);
    if (main_.contains(path.native()) || !table_->SpeaksFor(path)) return false;
    tabled_[PairOf(first, second)] = true;
    return true;
}

const DictionaryFile& DictionaryStore::OpenMainFileOfBytes(unsigned char first,
                                                           unsigned char second) {
    SyncWithState();
    const DictionaryFile& file = LoadMain(MainPathOfBytes(first, second)).file;
    std::unique_ptr<Row>& row = by_first_bytes_[first];
    if (!row) row = std::make_unique<Row>();
    (*row)[second] = &file;
    return file;
}

Path DictionaryStore::MainPathOfBytes(unsigned char first, unsigned char second) const {
    return MainPathFor(std::wstring{Page().ToUnicode(first), Page().ToUnicode(second)});
}

bool DictionaryStore::StandsInUnreadFile(std::string_view lower_bytes) {
    SyncWithState();
    const auto first = static_cast<unsigned char>(lower_bytes[0]);
    const auto second = static_cast<unsigned char>(lower_bytes[1]);
    const Row* const row = by_first_bytes_[first].get();
    if (row != nullptr && (*row)[second] != nullptr) return false;
    const Path path = MainPathOfBytes(first, second);
    if (main_.contains(path.native())) return false;
    --looks_left_;
    return FoundByHalvesIn(path, lower_bytes);
}

const DictionaryFile* DictionaryStore::MainFileFor(std::wstring_view lower_word) {
    const Loaded& loaded = LoadMain(MainPathFor(lower_word));
    return loaded.exists ? &loaded.file : nullptr;
}

Path DictionaryStore::MainPathFor(std::wstring_view lower_word) const {
    return state_.LanguageDictFolder / PathFromText(GetDictionaryFileName(lower_word, Page()));
}

DictionaryStore::Loaded DictionaryStore::Read(Path path) {
    Result<std::string> bytes = ReadWholeFile(path);
    std::erase_if(unreadable_, [&](const Error& known) { return known.where == path; });
    const bool is_missing = !bytes && IsMissing(path);
    if (!bytes && !is_missing) unreadable_.push_back(bytes.error());
    // What cannot be read counts as empty, but it is there.
    const bool exists = bytes.has_value() || (!is_missing && IsFile(path));
    return {DictionaryFile(bytes ? std::move(*bytes) : std::string()), exists, std::move(path)};
}

DictionaryStore::Loaded& DictionaryStore::LoadMain(const Path& path) {
    std::unique_ptr<Loaded>& slot = main_[path.native()];
    if (!slot) slot = std::make_unique<Loaded>(Read(path));
    return *slot;
}

std::size_t DictionaryStore::CustomCount() {
    SyncCustomSet();
    return custom_.size();
}

const DictionaryFile* DictionaryStore::CustomFile(std::size_t i) {
    SyncCustomSet();
    if (i >= custom_.size()) return nullptr;
    const Loaded& loaded = LoadCustom(custom_[i]);
    return loaded.exists ? &loaded.file : nullptr;
}

const std::wstring& DictionaryStore::CustomName(std::size_t i) {
    SyncCustomSet();
    return custom_.at(i).name;
}

Path DictionaryStore::CustomPath(std::wstring_view name) const {
    return IsPlainFileName(name) ? state_.CustomFolder() / PathFromText(name)
                                 : state_.CustomFolder();
}

Path DictionaryStore::ActiveCustomPath() {
    if (settings_.CustomDic.empty()) settings_.CustomDic = kDefaultCustomName;
    return CustomPath(settings_.CustomDic);
}

void DictionaryStore::SyncCustomSet() {
    if (settings_.CustomDic.empty()) settings_.CustomDic = kDefaultCustomName;
    if (settings_.CustomDictionaries.empty())
        settings_.CustomDictionaries = {std::wstring(kDefaultCustomName)};
    const std::vector<std::wstring>& names = settings_.CustomDictionaries;
    if (custom_data_folder_ != state_.DataFolder.native()) {
        custom_.clear();
        custom_data_folder_ = state_.DataFolder.native();
    }
    const auto is_named = [](const Custom& custom, const std::wstring& name) {
        return custom.name == name;
    };
    if (std::equal(custom_.begin(), custom_.end(), names.begin(), names.end(), is_named)) return;
    std::vector<Custom> custom;
    for (const std::wstring& name : names) {
        const auto known = std::find_if(custom_.begin(), custom_.end(),
                                        [&](const Custom& c) { return is_named(c, name); });
        if (known != custom_.end()) {
            custom.push_back(std::move(*known));
            custom_.erase(known);
        } else {
            custom.push_back({name, false, {}});
        }
    }
    custom_ = std::move(custom);
}

DictionaryStore::Loaded& DictionaryStore::LoadCustom(Custom& custom) {
    if (!custom.is_loaded) {
        // A listed name that is no file name stands for no file.
        custom.content = IsPlainFileName(custom.name) ? Read(CustomPath(custom.name)) : Loaded();
        custom.is_loaded = true;
    }
    return custom.content;
}

const ForbiddenWords& DictionaryStore::Forbidden() {
    // Asked for with every word that is looked up, so without making a path.
    if (forbidden_is_read_ && forbidden_data_folder_ == state_.DataFolder.native())
        return forbidden_;
    forbidden_is_read_ = true;
    forbidden_data_folder_ = state_.DataFolder.native();
    const Loaded loaded = Read(ForbiddenPath());
    forbidden_ = ForbiddenWords(loaded.file.Bytes(), Page());
    return forbidden_;
}

void DictionaryStore::ReloadCustomDictionaries() {
    forbidden_is_read_ = false;
    SyncCustomSet();
    for (Custom& custom : custom_) {
        custom.is_loaded = false;
        LoadCustom(custom);
    }
}

void DictionaryStore::ReloadFile(const Path& path) {
    tabled_.reset();
    for (const auto& [name, loaded] : main_) {
        if (IsSameFile(loaded->path, path)) *loaded = Read(loaded->path);
    }
    SyncCustomSet();
    for (Custom& custom : custom_) {
        if (IsSameFile(CustomPath(custom.name), path)) custom.is_loaded = false;
    }
}

}  // namespace wordhawk
