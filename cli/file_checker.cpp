#include "cli/file_checker.h"

#include "cli/console.h"
#include "cli/session.h"
#include "cli/visible_text.h"
#include "engine/suggest/image_file.h"

namespace wordhawk {
namespace {

bool IsRichTextName(std::string_view name) {
    return name.size() >= 4 && EqualIgnoringCase(FromUtf8(name.substr(name.size() - 4)), L".rtf");
}

SplitRules WithoutAddresses(SplitRules rules) {
    rules.ignore_webs = false;
    return rules;
}

}  // namespace

TextToCheck TextToCheck::Open(const std::string& file) {
    auto source =
        file == "-" ? ByteSource::StandardInput() : ByteSource::OpenFile(PathFromArgument(file));
    std::string name = file == "-" ? "<stdin>" : file;
    std::error_code error;
    Path folder = file == "-" ? std::filesystem::current_path(error)
                              : std::filesystem::absolute(PathFromArgument(file), error)
                                    .lexically_normal()
                                    .parent_path();
    if (!source) return {std::move(name), {}, tl::unexpected(source.error())};
    return {std::move(name), std::move(folder),
            TextBlocks(std::move(*source),
                       IsRichTextName(file) ? DocumentKind::RichText : DocumentKind::ByContent)};
}

FileChecker::FileChecker(const Program& program, const CheckOptions& options,
                         const WordSet& ignored, Colour colour)
    : state_(program.state),
      settings_(program.settings),
      store_(state_, settings_),
      rules_(SplitRules::From(state_, settings_)),
      options_(options),
      places_(options.format == CheckFormat::Lines || options.format == CheckFormat::Json),
      suggester_(store_, settings_),
      report_(suggester_, options, colour),
      ignored_(ignored),
      projects_(*state_.CodePage) {
    store_.SetMainTableSource(MainTableFromImage);
}

SideBySide::Result FileChecker::Check(TextToCheck& text, Output& out, ProgressLine* progress) {
    SideBySide::Result result;
    try {
        const auto checked = CheckBlocks(text, out, progress, result);
        if (!checked) result.error_line = MessageLine(text.name, ToUtf8(checked.error().what));
    } catch (const std::bad_alloc& error) {
        result.error_line = MessageLine(text.name, DescribeException(error));
    }
    report_.EndPart(out);
    return WithUnreadable(result);
}

Result<void> FileChecker::CheckBlocks(TextToCheck& text, Output& out, ProgressLine* progress,
                                      SideBySide::Result& result) {
    if (!text.blocks) return tl::unexpected(text.blocks.error());
    TextChecker checker(store_, rules_, Remember::Lately);
    Begin(text.name, text.folder, result);
    const std::string shown = VisibleText(text.name);
    TextPosition position;
    while (true) {
        auto block = text.blocks->Next();
        if (!block) return tl::unexpected(block.error());
        if (block->Empty()) return {};
        if (!places_ && block->IsAscii()) {
            result.found |= ReportAscii(checker, block->bytes, out);
        } else {
            const std::wstring decoded = block->Decode(*state_.CodePage);
            result.found |= Report(checker, decoded, decoded, position, out);
        }
        if (progress != nullptr) progress->Show(shown, text.blocks->PercentRead());
    }
}

SideBySide::Result FileChecker::CheckBlock(const std::string& name, const Path& folder,
                                           RawBlock& block, BlockOrder::Turn& turn, Output& out) {
    if (!block_checker_) block_checker_.emplace(store_, WithoutAddresses(rules_), Remember::Lately);
    SideBySide::Result result;
    if (!places_ && block.IsAscii()) {
        TakeTurn(block.bytes, turn);
        turn.Pass();
        Begin(name, folder, result);
        result.found = ReportAscii(*block_checker_, block.bytes, out);
    } else {
        const std::wstring text = block.Decode(*state_.CodePage);
        std::wstring blanked = text;
        TextPosition counted;
        if (places_) counted.Advance(text);
        BlockOrder::State& before = TakeTurn(blanked, turn);
        TextPosition position = before.position;
        before.position.AdvanceCounted(text, counted);
        turn.Pass();
        Begin(name, folder, result);
        result.found = Report(*block_checker_, blanked, text, position, out);
    }
    report_.EndPart(out);
    return WithUnreadable(result);
}

/// Blanks the addresses of a block, whose turn has come then.
template <class Text>
BlockOrder::State& FileChecker::TakeTurn(Text& text, BlockOrder::Turn& turn) {
    std::vector<AddressBlanker::Range> runs;
    if (rules_.ignore_webs) runs = AddressBlanker::FindRuns(text);
    BlockOrder::State& before = turn.Wait();
    if (!runs.empty()) before.addresses.BlankRuns(text, runs);
    return before;
}

/// What follows is about this text. A list of its project that cannot be read is an error, but no
/// reason to leave the text unchecked.
void FileChecker::Begin(const std::string& name, const Path& folder, SideBySide::Result& result) {
    report_.BeginFile(name);
    project_words_.reset();
    if (!options_.project_words) return;
    const auto words = projects_.In(folder);
    if (words) {
        project_words_ = *words;
    } else {
        result.error_line = MessageLine(words.error());
    }
}

/// A forbidden word is reported all the same.
bool FileChecker::IsIgnored(std::wstring_view word) {
    const bool listed =
        ignored_.Holds(word) || (project_words_ != nullptr && project_words_->Holds(word));
    return listed && store_.Forbidden().Find(word) == nullptr;
}

/// Whether `fed` holds an unknown word. It is `text`, perhaps with addresses blanked.
bool FileChecker::Report(TextChecker& checker, std::wstring_view fed, std::wstring_view text,
                         TextPosition& position, Output& out) {
    const std::uint64_t base = checker.Consumed();
    std::size_t walked = 0;
    bool found = false;
    checker.Feed(fed, [&](const UnknownWord& word) {
        if (IsIgnored(word.listed)) return;
        found = true;
        if (!places_) {
            report_.Add(out, word, 0, 0);
            return;
        }
        const auto at = static_cast<std::size_t>(word.offset - base);
        position.Advance(text.substr(walked, at - walked));
        walked = at;
        report_.Add(out, word, position.Line(), position.Column());
    });
    if (places_) position.Advance(text.substr(walked));
    return found;
}

/// The same for a text of which nobody asks where the words stand.
bool FileChecker::ReportAscii(TextChecker& checker, std::string_view text, Output& out) {
    bool found = false;
    checker.FeedAscii(text, [&](const UnknownWord& word) {
        if (IsIgnored(word.listed)) return;
        found = true;
        report_.Add(out, word, 0, 0);
    });
    return found;
}

/// Words of a dictionary that cannot be read are not unknown ones.
SideBySide::Result& FileChecker::WithUnreadable(SideBySide::Result& result) const {
    for (const Error& error : store_.Unreadable()) result.unreadable.push_back(MessageLine(error));
    return result;
}

}  // namespace wordhawk
