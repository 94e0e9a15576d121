#include "bench/english.h"

#include "engine/document/document_text.h"
#include "platform/files.h"
#include "platform/folders.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>

namespace wordhawk::bench {
namespace {

class SilentUi : public UiServices {
  public:
    Answer ShowMessage(std::wstring_view, std::wstring_view, MessageIcon, MessageButtons) override {
        return Answer::Ok;
    }
    void Beep() override {}
    void SetBusy(bool) override {}
};

/// The data folder goes when the run ends.
class Surroundings {
  public:
    Surroundings() : folder_(TemporaryFolder() / ("wordhawk-bench-" + std::to_string(getpid()))) {
        ProgramOptions options;
        options.data_folder = folder_;
        options.locale = 1033;
        program_ = std::make_unique<Program>(options, ui_);
        if (!program_->dictionaries.IsWordInDictionaries(L"spelling", Scope::MainOnly)) {
            std::fputs("build the target dictionary-1033 first\n", stderr);
            std::exit(2);
        }
    }
    ~Surroundings() {
        program_.reset();
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    Program& English() { return *program_; }

  private:
    Path folder_;
    SilentUi ui_;
    std::unique_ptr<Program> program_;
};

}  // namespace

Program& English() {
    static Surroundings surroundings;
    return surroundings.English();
}

const std::vector<Pair>& Pairs() {
    static const std::vector<Pair> pairs = {
        {L"recieve", L"receive"},
        {L"definately", L"definitely"},
        {L"untill", L"until"},
        {L"seperate", L"separate"},
        {L"embarassing", L"embarrassing"},
        {L"becuase", L"because"},
        {L"maintenence", L"maintenance"},
        {L"recomend", L"recommend"},
        {L"independant", L"independent"},
        {L"adress", L"address"},
        {L"similiar", L"similar"},
        {L"goverment", L"government"},
        {L"comittee", L"committee"},
        {L"priviledge", L"privilege"},
        {L"accross", L"across"},
        {L"beleive", L"believe"},
    };
    return pairs;
}

const std::wstring& Megabyte() {
    static const std::wstring text = [] {
        const auto bytes = ReadWholeFile(Path(WORDHAWK_SAMPLE));
        if (!bytes) {
            std::fputs("the sample document is missing\n", stderr);
            std::exit(2);
        }
        const std::wstring sample = DecodeDocument(*bytes, AnsiCodePage::Get(1252)).text;
        std::wstring all;
        while (all.size() < 1'000'000) all += sample;
        return all;
    }();
    return text;
}

}  // namespace wordhawk::bench
