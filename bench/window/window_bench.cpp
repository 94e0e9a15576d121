// Times the main window's work on a large plain text with many unknown words: loading, the check,
// each command up to the next word shown, a large Change All and its undo. Prints one line each.
//
//   window_bench [MEGABYTES]         1 by default
//   window_bench MEGABYTES bare      the rich text box alone, for comparison

#include "platform/text.h"
#include "tests/support/temp_dir.h"
#include "tests/windows/main_window/fake_desktop.h"
#include "ui/main_window/frmNewSpell.h"

#include <psapi.h>
#include <richedit.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

namespace wordhawk {
namespace {

constexpr int kUnknownWords = 5000;
constexpr int kOccurrences = 1000;

/// A pronounceable word that no dictionary holds, a different one for each number.
std::wstring UnknownWord(int number) {
    std::wstring word = L"zq";
    for (int i = 0; i < 4; ++i) {
        word += L"bcdfgklmnp"[number % 10];
        word += L"aeiouaeiou"[number % 10];
        number /= 10;
    }
    return word;
}

std::wstring MakeText(std::size_t size) {
    std::wstring text;
    text.reserve(size + 200);
    int word = 0;
    int line = 0;
    const int frequent_every = static_cast<int>(size / 62) / kOccurrences;
    while (text.size() < size) {
        text += L"the quick brown fox and the lazy dog see the ";
        text += word < kUnknownWords ? UnknownWord(word++) : L"house";
        if (++line % frequent_every == 0) text += L" recieve";
        text += line % 10 == 0 ? L"\r\n" : L" ";
    }
    return text;
}

struct Time {
    double wall = 0;
    double processor = 0;  ///< of this process
};

double ProcessorMilliseconds() {
    FILETIME created{}, exited{}, kernel{}, user{};
    GetProcessTimes(GetCurrentProcess(), &created, &exited, &kernel, &user);
    const auto ticks = [](const FILETIME& time) {
        return static_cast<double>((static_cast<std::uint64_t>(time.dwHighDateTime) << 32) |
                                   time.dwLowDateTime);
    };
    return (ticks(kernel) + ticks(user)) / 1e4;
}

Time Measure(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    const double processor = ProcessorMilliseconds();
    work();
    const std::chrono::duration<double, std::milli> wall = std::chrono::steady_clock::now() - start;
    return {wall.count(), ProcessorMilliseconds() - processor};
}

void Report(const std::string& what, const Time& time) {
    std::printf("%-40s %9.1f ms, of the processor %9.1f ms\n", what.c_str(), time.wall,
                time.processor);
    std::fflush(stdout);
}

void ReportMemory(const char* when) {
    PROCESS_MEMORY_COUNTERS memory{};
    GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
    std::printf("working set %s: %.1f MB, at most %.1f MB\n", when,
                static_cast<double>(memory.WorkingSetSize) / 1e6,
                static_cast<double>(memory.PeakWorkingSetSize) / 1e6);
}

void Pump() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
}

/// What the system's control takes for the same text without us: its least share of all figures.
int RunBare(std::size_t megabytes) {
    LoadLibraryW(L"msftedit.dll");
    const HWND frame = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                       560, 620, nullptr, nullptr, nullptr, nullptr);
    constexpr DWORD kStyle =
        WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL | ES_NOHIDESEL;
    const HWND box = CreateWindowExW(0, MSFTEDIT_CLASS, L"", kStyle, 0, 0, 530, 210, frame, nullptr,
                                     nullptr, nullptr);
    SendMessageW(box, EM_EXLIMITTEXT, 0, 0x7FFFFFFE);
    const std::wstring text = MakeText(megabytes * 1'000'000);
    ReportMemory("before loading");
    Report("load", Measure([&] {
               SetWindowTextW(box, text.c_str());
               Pump();
           }));
    ReportMemory("after loading");
    return 0;
}

int Run(std::size_t megabytes) {
    const test::TempDir folder;
    const Path words = folder / L"data";
    const std::string dictionary =
        "the,84000\r\nquick,81200\r\nbrown,66650\r\nfox,70200\r\nand,65530\r\nlazy,76200\r\ndog,"
        "68200\r\n"
        "see,83000\r\nhouse,72200\r\nreceive,82100\r\n";
    for (const char* file :
         {"th_", "qu_", "br_", "fo_", "an_", "la_", "do_", "se_", "ho_", "re_", "zq_"}) {
        test::WriteBytes(words / "Dictionarys" / "1033" / (std::string(file) + ".dic"), dictionary);
    }
    test::WriteBytes(words / "Wordhawk.ini", "[Settings]\r\nRemainOpen=1\r\n");
    test::FakeDesktop fakes;
    ProgramOptions options;
    options.data_folder = words;
    options.locale = 1033;
    options.install_shipped = false;
    Program program(options, fakes.ui);
    SharedMainWindow shared;
    frmNewSpell form(
        {program, fakes.desktop, shared, PlacementStore(L"Software\\Wordhawk\\Bench")});
    form.Show();
    Pump();

    ReportMemory("with an empty document");
    const std::wstring text = MakeText(megabytes * 1'000'000);
    ReportMemory("before loading");
    Report("load", Measure([&] {
               form.document.LoadPlainText({text});
               Pump();
           }));
    ReportMemory("after loading");
    Report("read the text", Measure([&] { form.document.Text(); }));
    Report("check, to the filled list", Measure([&] { form.cmdSpellcheck_Click(); }));
    Pump();
    ReportMemory("after the check");
    std::printf("%d words listed\n", form.lstNID.Count());

    form.lstNID.Select(form.lstNID.FindExact(L"recieve"));
    form.lstNID_Click();
    form.txtChgTo.SetText(L"receive");
    Report("Change All of a frequent word", Measure([&] {
               form.cmdChangeAll_Click();
               Pump();
           }));
    std::printf("%s\n", ToUtf8(form.lblStatus.Text()).c_str());
    Report("its Undo", Measure([&] {
               form.document.Undo();
               Pump();
           }));
    const auto average = [&](const char* what, const std::function<void()>& command) {
        Time total;
        double worst = 0;
        for (int i = 0; i < 20; ++i) {
            const Time one = Measure([&] {
                command();
                Pump();
            });
            total.wall += one.wall / 20;
            total.processor += one.processor / 20;
            worst = std::max(worst, one.wall);
        }
        Report(what, total);
        std::printf("%40s %9.1f ms\n", "worst of 20", worst);
    };
    average("Ignore All", [&] { form.cmdIgnoreAll_Click(); });
    average("Change", [&] {
        form.txtChgTo.SetText(L"house");
        form.cmdChange_Click();
    });
    average("Change All", [&] {
        form.txtChgTo.SetText(L"house");
        form.cmdChangeAll_Click();
    });
    average("Add to custom", [&] { form.cmdAdd_Click(1); });
    average("choose a word of the list", [&] {
        form.lstNID.Select(form.lstNID.Count() / 2);
        form.lstNID_Click();
    });
    average("type a character, then Ignore All", [&] {
        form.rtbW.ReplaceSelection(L"x");
        form.cmdIgnoreAll_Click();
    });

    Report("load another text", Measure([&] {
               form.document.LoadPlainText({L"short"});
               Pump();
           }));

    ReportMemory("at the end");
    return 0;
}

}  // namespace
}  // namespace wordhawk

int main(int argc, char** argv) {
    const std::size_t megabytes = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 1;
    return argc > 2 ? wordhawk::RunBare(megabytes) : wordhawk::Run(megabytes);
}
