#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace wordhawk {

enum class Behaviour { Modern, Classic };
enum class SearchChoice { BySetting, Wide, File };

/// Options that every command takes; all text is UTF-8.
struct GlobalOptions {
    std::string data_folder;
    int locale = 0;
    std::vector<std::pair<std::string, std::string>> settings;
    std::vector<std::pair<int, int>> flags;
    bool install = true;
    /// The settings that go beyond the classic behaviour: 1 where nobody set them, or all 0.
    Behaviour behaviour = Behaviour::Modern;
    /// Which search gives suggestions; by the setting unless it was chosen.
    SearchChoice search = SearchChoice::BySetting;
};

enum class CheckFormat { Lines, List, Json, Words, Count };

struct CheckOptions {
    std::vector<std::string> files;
    CheckFormat format = CheckFormat::Lines;
    bool suggestions = true;
    /// 0: as many as there are.
    int max_suggestions = 5;
    int jobs = 1;
    bool exit_zero = false;
    /// Lists of words that are not reported.
    std::vector<std::string> ignored_lists;
    /// Whether the lists that projects keep count.
    bool project_words = true;
};

/// Words from the command line, or one a line from standard input.
struct WordOptions {
    std::vector<std::string> words;
    bool from_input = false;
};

struct ExplainOptions {
    std::string word;
    std::string candidate;
    bool json = false;
};

struct AddOptions {
    std::vector<std::string> words;
    bool to_main = false;
    /// Name of a custom dictionary; empty: the active one.
    std::string custom;
    /// Say nothing about what was done.
    bool quiet = false;
};

/// A word and those preferred to it, or words to be taken off; nothing lists them.
struct ForbidOptions {
    std::vector<std::string> words;
    bool remove = false;
};

struct ImportOptions {
    std::string file;
    bool quiet = false;
};

struct BuildOptionsOfCommand {
    std::string output;
    int code_page = 1252;
    bool pieces = false;
    bool shipped = false;
    std::string in_use;
    bool any_short_names = false;
    std::string names_in_use;
    std::string parts_in_use;
    std::vector<std::string> excluded;
    std::vector<std::string> piece_lists;
    std::vector<std::string> hunspell_dictionaries;
    std::vector<std::string> word_lists;
};

enum class Command {
    Check,
    Suggest,
    Explain,
    Key,
    Add,
    Remove,
    Forbid,
    Import,
    Dictionaries,
    BuildDictionary,
    Pipe,
};

struct Options {
    GlobalOptions global;
    Command command = Command::Check;
    CheckOptions check;
    WordOptions words;  ///< of suggest, key, remove
    ExplainOptions explain;
    AddOptions add;
    ForbidOptions forbid;
    ImportOptions import;
    std::string activate;  ///< of dictionaries
    BuildOptionsOfCommand build;
};

/// Either what to do, or a text to print at once and the code to exit with: on stdout when the code
/// is 0 (help, version), else on stderr.
struct ParsedCommandLine {
    std::optional<Options> options;
    std::string text;
    int exit_code = 0;
};

/// Reads command lines, one after the other. Not safe to share between threads.
class CommandLineParser {
  public:
    CommandLineParser();
    ~CommandLineParser();
    CommandLineParser(const CommandLineParser&) = delete;
    CommandLineParser& operator=(const CommandLineParser&) = delete;

    /// `arguments` without the program's name, UTF-8 where they are well-formed.
    ParsedCommandLine Parse(const std::vector<std::string>& arguments);

  private:
    friend ParsedCommandLine ParseCommandLine(const std::vector<std::string>& arguments);
    class Grammar;
    std::unique_ptr<Grammar> grammar_;
};

/// CommandLineParser for one line.
ParsedCommandLine ParseCommandLine(const std::vector<std::string>& arguments);

/// The line that ispell clients read to see whom they speak with.
extern const std::string kIspellBanner;

/// Whether the arguments are those that programs start ispell with: a "-a", "-l", "-v" or "pipe"
/// where a command would stand.
bool IsIspellCommandLine(const std::vector<std::string>& arguments);

/// Reads ispell's arguments; those that mean nothing here are passed over.
ParsedCommandLine ParseIspellCommandLine(const std::vector<std::string>& arguments);

}  // namespace wordhawk
