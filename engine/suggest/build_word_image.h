#pragma once

#include "app/progress.h"
#include "engine/suggest/word_image.h"
#include "platform/files.h"

#include <memory>
#include <string>
#include <string_view>

namespace wordhawk {

/// What an image is made from.
struct WordImageSources {
    /// The language's main dictionary files.
    Path folder;
    /// Lines of word, or of two words that are often written as one, blank, count in UTF-8; may be
    /// missing.
    Path frequencies;
    const AnsiCodePage* page = &AnsiCodePage::Get(1252);
    /// Whether words are to be found by their sound as well.
    bool by_sound = false;
};

/// Reads every main dictionary file and makes the image of their words. Files that cannot be read
/// count as empty. The result begins where a 64-bit number may, like every block from the heap, and
/// is empty when the user stopped it.
std::string BuildWordImage(const WordImageSources& sources, Progress& progress);

/// Which entries of a main dictionary file a look-up finds: those that fit a table and belong into
/// the file by their beginning.
class MainEntryTest {
  public:
    MainEntryTest(std::string_view file_name, const AnsiCodePage& page);

    bool Passes(std::string_view word);

  private:
    std::wstring file_name_;
    const AnsiCodePage& page_;
    /// Mostly the next word begins like the one before.
    std::string beginning_;
    bool belongs_ = false;
};

/// Calls `use(word)` for every entry of a dictionary file's bytes that a look-up finds: those
/// before a comma and, with `bare`, those alone on a line below the first.
template <class Use>
void ForEachEntry(std::string_view bytes, bool bare, Use&& use) {
    for (std::size_t start = 0; start < bytes.size();) {
        const std::size_t stop = bytes.find_first_of(",\r\n", start);
        if (stop == std::string_view::npos) return;
        if (bytes[stop] == ',' || (bare && bytes[stop] == '\r' && start != 0))
            use(bytes.substr(start, stop - start));
        const std::size_t feed = bytes.find('\n', stop);
        if (feed == std::string_view::npos) return;
        start = feed + 1;
    }
}

}  // namespace wordhawk
