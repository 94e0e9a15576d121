#pragma once

#include "engine/document/rtf_lexer.h"

#include <compare>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// The tables at the head of a rich text: read, and written with those entries alone that the text
/// uses, in the order of their first use.
namespace wordhawk {

/// Appends text (UTF-16) as RTF: what is not ASCII as \u with "?" for readers without Unicode.
void WriteRtfText(std::wstring_view text, std::string& out);

class RtfFonts {
  public:
    explicit RtfFonts(std::wstring_view default_face);

    // Reading
    /// A control word of the table. False when it is none that counts there.
    bool Take(const RtfToken& word);
    void TakeText(std::wstring_view text);
    void SetDefault(int number) { default_number_ = number; }
    /// Character set of a font of the document; -1, the default font, and a font that is not in the
    /// table count as the default one, whose set is 1 when it is not in the table either.
    int Charset(int number) const;

    // Writing
    /// The number of a font of the document in the table to be written.
    int Use(int number);
    void Write(std::string& out) const;

  private:
    struct Font {
        std::wstring name;
        int family = 0;
        int charset = 1;
        auto operator<=>(const Font&) const = default;
    };
    const Font& Find(int number) const;

    Font default_;
    std::unordered_map<int, Font> read_;
    int default_number_ = 0;
    Font* current_ = nullptr;
    bool name_complete_ = false;
    std::map<Font, int> written_number_;
    std::vector<Font> written_;
};

class RtfColours {
  public:
    bool Take(const RtfToken& word);
    void TakeText(std::string_view text);

    /// 0 is the reader's own colour.
    int Use(int number);
    void Write(std::string& out) const;

  private:
    std::vector<std::optional<std::uint32_t>> read_;
    std::optional<std::uint32_t> current_;
    std::unordered_map<std::uint32_t, int> written_number_;
    std::vector<std::uint32_t> written_;
};

}  // namespace wordhawk
