#include "cli/command_grammar.h"

#include "cli/option_kinds.h"

namespace wordhawk {
namespace {

CLI::App* AddCommand(CLI::App& app, const std::string& name, const std::string& help) {
    return app.add_subcommand(name, help)->group("Commands");
}

void AddCheck(CLI::App& app, const GivenArguments& given, Options& options) {
    CheckOptions& check = options.check;
    CLI::App* const command = AddCommand(app, "check", "Print the unknown words of texts");
    command
        ->add_option("FILE", check.files,
                     "Text or rich-text (.rtf) files; standard input without FILE or for -")
        ->type_name("");
    const auto format = [&check](CheckFormat chosen) {
        return [&check, chosen] { check.format = chosen; };
    };
    CLI::Option* const list = command->add_flag_callback(
        "--list", format(CheckFormat::List), "Each unknown word once, in the order found");
    CLI::Option* const json = command->add_flag_callback("--json", format(CheckFormat::Json),
                                                         "One JSON object for each occurrence");
    CLI::Option* const count = command->add_flag_callback(
        "--count", format(CheckFormat::Count),
        "Each unknown word, a tab, and how often it occurs, sorted by bytes");
    command
        ->add_flag_callback("-l,--words", format(CheckFormat::Words),
                            "Each occurrence as it is written, and exit with 0, as ispell -l")
        ->excludes(list)
        ->excludes(json)
        ->excludes(count);
    list->excludes(json)->excludes(count);
    json->excludes(count);
    if (given.MayHaveOption("--max-suggestions")) {
        command
            ->add_option("--max-suggestions", check.max_suggestions,
                         "Suggestions shown for a word, 0 for all (default 5)")
            ->type_name("N")
            ->check(Between(0, 1000000));
    }
    if (given.MayHaveOption("--no-suggestions")) {
        command->add_flag_callback(
            "--no-suggestions", [&check] { check.suggestions = false; },
            "Do not look for suggestions");
    }
    if (given.MayHaveOption("--exit-zero")) {
        command->add_flag("--exit-zero", check.exit_zero,
                          "Exit with 0 even when there are unknown words");
    }
    if (given.MayHaveOption("--jobs", 'j')) {
        command
            ->add_option("-j,--jobs", check.jobs,
                         "Texts, and blocks of a large text, checked at the same time (default 1)")
            ->type_name("N")
            ->check(Between(1, 256));
    }
    if (given.MayHaveOption("--ignore-words")) {
        OneValueEachTime(*command, "--ignore-words", check.ignored_lists,
                         "Do not report the words of this list, one a line")
            ->type_name("FILE");
    }
    if (given.MayHaveOption("--no-project-words")) {
        command->add_flag_callback(
            "--no-project-words", [&check] { check.project_words = false; },
            "Leave the lists called .wordhawk-words alone: those in a text's folder (the current "
            "one for standard input) and above it, up to the root of its git repository");
    }
    command->footer(
        "Prints FILE:LINE:COLUMN: WORD -> SUGGESTION (SCORE%), ... for each unknown word.\n"
        "Exit code: 0 no unknown word, 1 some, 2 error.\n\nExamples:\n"
        "  wordhawk-cli check letter.txt report.rtf\n"
        "  wordhawk-cli --set Language=1031 check --list brief.txt\n"
        "  git log -1 --format=%B | wordhawk-cli check -\n"
        "  wordhawk-cli check -j 4 --json docs/*.txt > unknown.jsonl\n"
        "  wordhawk-cli check -j 4 --count corpus.txt > unknown.tsv");
}

void AddSuggest(CLI::App& app, const GivenArguments&, Options& options) {
    CLI::App* const suggest = AddCommand(app, "suggest", "Print suggestions for words");
    suggest->add_option("WORD", options.words.words, "Words")->type_name("");
    suggest->add_flag("--stdin", options.words.from_input,
                      "Read words from standard input, one a line");
    suggest->footer(
        "Prints WORD, SUGGESTION, SCORE and * (on the best), separated by tabs.\n\nExamples:\n"
        "  wordhawk-cli suggest recieve beleive\n"
        "  wordhawk-cli --set Diversity=3 --set ScoreValue=70 suggest adress\n"
        "  wordhawk-cli check --list draft.txt | wordhawk-cli suggest --stdin");
}

void AddExplain(CLI::App& app, const GivenArguments&, Options& options) {
    CLI::App* const explain =
        AddCommand(app, "explain", "Tell how a candidate measures up to a word, and what drops it");
    explain->add_option("WORD", options.explain.word, "Word as typed")->type_name("")->required();
    explain->add_option("CANDIDATE", options.explain.candidate, "Dictionary word")
        ->type_name("")
        ->required();
    explain->add_flag("--json", options.explain.json, "Print one JSON object");
    explain->footer(
        "Examples:\n  wordhawk-cli explain recieve receive\n"
        "  wordhawk-cli --set SortBy=2 explain --json teh the");
}

void AddKey(CLI::App& app, const GivenArguments&, Options& options) {
    CLI::App* const key = AddCommand(app, "key", "Print dictionary file and phonetic key of words");
    key->add_option("WORD", options.words.words, "Words")->type_name("");
    key->add_flag("--stdin", options.words.from_input,
                  "Read words from standard input, one a line");
    key->footer(
        "Prints WORD, FILE and KEY, separated by tabs.\n\nExamples:\n"
        "  wordhawk-cli key hello\n  wordhawk-cli key --stdin < words.txt");
}

void AddAdd(CLI::App& app, const GivenArguments&, Options& options) {
    CLI::App* const add = AddCommand(app, "add", "Add words to a dictionary");
    add->add_option("WORD", options.add.words, "Words")->type_name("")->required();
    CLI::Option* const to_main =
        add->add_flag("--main", options.add.to_main, "Into the main dictionary of the language");
    add->add_option("--custom", options.add.custom,
                    "Into this custom dictionary (made when missing)")
        ->type_name("NAME")
        ->excludes(to_main);
    add->add_flag("-q,--quiet", options.add.quiet, "Say nothing about what was done");
    add->footer(
        "Without --main or --custom the words go into the active custom dictionary.\n\nExamples:\n"
        "  wordhawk-cli add Wordhawk spellchecker\n  wordhawk-cli add --custom names.dic "
        "Ostrowska");
}

void AddRemove(CLI::App& app, const GivenArguments&, Options& options) {
    CLI::App* const remove = AddCommand(app, "remove", "Remove words from the dictionaries");
    remove->add_option("WORD", options.words.words, "Words")->type_name("")->required();
    remove->footer(
        "Each word is removed from the first dictionary that holds it, the main one before custom "
        "ones.\n"
        "Prints WORD and the changed file; exits with 1 when a word was in none.\n\nExamples:\n"
        "  wordhawk-cli remove spellchecker");
}

void AddForbid(CLI::App& app, const GivenArguments&, Options& options) {
    CLI::App* const forbid =
        AddCommand(app, "forbid", "Flag a word always, and suggest what is preferred to it");
    forbid->add_option("WORD", options.forbid.words, "The word, then those preferred to it")
        ->type_name("");
    forbid->add_flag("--remove", options.forbid.remove, "Forbid the words no more");
    forbid->footer(
        "Without a word it prints the forbidden ones, a tab, and what is preferred.\n\nExamples:\n"
        "  wordhawk-cli forbid teh the\n  wordhawk-cli forbid alot \"a lot\" much\n"
        "  wordhawk-cli forbid --remove teh");
}

void AddImport(CLI::App& app, const GivenArguments&, Options& options) {
    CLI::App* const import =
        AddCommand(app, "import", "Make a custom dictionary of a file's new words");
    import->add_flag("-q,--quiet", options.import.quiet, "Say nothing about what was done");
    import
        ->add_option("FILE", options.import.file,
                     "Word list, one word a line, UTF-8, UTF-16 or ANSI")
        ->type_name("")
        ->required();
    import->footer(
        "Prints the number of words added. Flags 249 and 250 say whether words of the main and of "
        "the\n"
        "custom dictionaries are left out.\n\nExamples:\n"
        "  wordhawk-cli import medical.dic\n  wordhawk-cli --flag 250=0 import names.dic");
}

void AddDictionaries(CLI::App& app, const GivenArguments&, Options& options) {
    CLI::App* const list = AddCommand(app, "dictionaries", "List main and custom dictionaries");
    list->add_option("--activate", options.activate,
                     "First make this custom dictionary one that is searched")
        ->type_name("NAME");
    list->footer(
        "Prints main or custom, NAME, number of words and * (in use), separated by "
        "tabs.\n\nExamples:\n"
        "  wordhawk-cli dictionaries\n  wordhawk-cli dictionaries --activate MEDICAL.DIC");
}

void AddBuildDictionary(CLI::App& app, const GivenArguments&, Options& options) {
    CLI::App* const build =
        AddCommand(app, "build-dictionary", "Write main dictionary files from word lists");
    build->add_option("WORDLIST", options.build.word_lists, "Lists, one word a line, UTF-8 or ANSI")
        ->type_name("");
    OneValueEachTime(*build, "--hunspell", options.build.hunspell_dictionaries,
                     "Spell out this hunspell dictionary, with the .aff file beside it")
        ->type_name("FILE.dic");
    build->add_option("--output", options.build.output, "Folder that gets the files")
        ->required()
        ->type_name("DIR");
    build
        ->add_option("--code-page", options.build.code_page,
                     "Windows code page of the language (default 1252)")
        ->type_name("N")
        ->check(CLI::IsMember({874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258})
                    .description(""));
    build->add_flag("--pieces", options.build.pieces,
                    "Also take the parts that delimiters cut words into; those that letters and "
                    "apostrophes cut pass only where these delimit");
    OneValueEachTime(*build, "--pieces-from", options.build.piece_lists,
                     "Let the words of this list pass only where letters delimit")
        ->type_name("FILE");
    build
        ->add_option(
            "--in-use", options.build.in_use,
            "Words by how often they are used; short names and words that would hide slips "
            "must be among them")
        ->type_name("FILE");
    build->add_flag("--any-short-names", options.build.any_short_names,
                    "Take short names whether --in-use has them or not");
    build
        ->add_option("--names-in-use", options.build.names_in_use,
                     "Words by how often they are used; names that would hide slips in common "
                     "ones must be among them")
        ->type_name("FILE");
    build
        ->add_option("--parts-in-use", options.build.parts_in_use,
                     "Words by how often they are used; parts of compounds of three letters must "
                     "be common ones")
        ->type_name("FILE");
    build->add_flag("--pack", options.build.shipped,
                    "Note the files, so that a newer pack can take the place of this one");
    OneValueEachTime(*build, "--exclude", options.build.excluded,
                     "Leave out the words of this list")
        ->type_name("FILE");
    build->footer(
        "Examples:\n"
        "  wordhawk-cli build-dictionary --output Dictionarys/1033 "
        "/usr/share/dict/american-english\n"
        "  wordhawk-cli build-dictionary --output 1045 --code-page 1250 polish.txt\n"
        "  wordhawk-cli build-dictionary --output 1035 --pieces --hunspell fi_FI.dic");
}

void AddPipe(CLI::App& app, const GivenArguments&, Options&) {
    CLI::App* const pipe =
        AddCommand(app, "pipe", "Speak the line protocol of ispell -a, for editors (also: -a)");
    pipe->footer(
        "Examples:\n  echo '^Ths is a tset' | wordhawk-cli pipe\n"
        "  emacs --eval '(setq ispell-program-name \"wordhawk-cli\")'");
}

constexpr CommandRow kCommands[] = {
    {"check", Command::Check, AddCheck},
    {"suggest", Command::Suggest, AddSuggest},
    {"explain", Command::Explain, AddExplain},
    {"key", Command::Key, AddKey},
    {"add", Command::Add, AddAdd},
    {"remove", Command::Remove, AddRemove},
    {"forbid", Command::Forbid, AddForbid},
    {"import", Command::Import, AddImport},
    {"dictionaries", Command::Dictionaries, AddDictionaries},
    {"build-dictionary", Command::BuildDictionary, AddBuildDictionary},
    {"pipe", Command::Pipe, AddPipe}};

}  // namespace

std::span<const CommandRow> CommandRows() { return kCommands; }

}  // namespace wordhawk
