#include "engine/document/rtf_rewrite.h"

#include "engine/document/rtf_formats.h"
#include "engine/document/rtf_lexer.h"
#include "engine/document/rtf_tables.h"
#include "engine/document/rtf_unicode.h"
#include "engine/document/rtf_vocabulary.h"
#include "platform/text.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace wordhawk {
namespace {

constexpr std::size_t kDeepestGroup = 1000;

/// Destinations and words whose content the rich text box does not get, though a person would miss
/// it in the file. Others that are left out (styles, information about the document) hold no text.
constexpr std::array<std::string_view, 25> kMissed = {
    "annotation", "bin",     "deleted",    "do",      "field",   "footer",  "footerf",
    "footerl",    "footerr", "footnote",   "header",  "headerf", "headerl", "headerr",
    "listtext",   "nestrow", "nonshppict", "objdata", "object",  "pict",    "row",
    "shp",        "shpgrp",  "shppict",    "trowd"};
static_assert(std::is_sorted(kMissed.begin(), kMissed.end()));

bool IsMissed(std::string_view word) {
    return std::binary_search(kMissed.begin(), kMissed.end(), word);
}

/// Destinations that are left out whole, apart from those that hold no text anyway.
bool IsLeftOut(std::string_view word) {
    return word == "object" || word == "shp" || word == "shpgrp" || word == "annotation" ||
           IsSeparateDestination(word);
}

/// Code pages whose bytes the rich text box decodes itself: several of them may make a character.
bool IsLeftToTheReader(int page) {
    return page == 932 || page == 936 || page == 949 || page == 950 || page == 1361;
}
bool IsLeftToTheReaderCharset(int charset) {
    return charset == 2 || charset == 128 || charset == 129 || charset == 130 || charset == 134 ||
           charset == 136;
}

/// Marks that the rich text box gives a meaning of its own, and control characters.
bool IsUnfit(wchar_t c) {
    return c < 0x20 || c == 0x7F || (c >= 0xFFF9 && c <= 0xFFFC) || c == 0xFFFE || c == 0xFFFF;
}

class Rewriter {
  public:
    Rewriter(std::string_view rtf, std::wstring_view default_face)
        : lexer_(rtf), fonts_(default_face) {
        body_.reserve(rtf.size());
    }

    RewrittenRtf Rewrite() {
        while (!finished_) Take(lexer_.Next());
        FlushParagraph();
        std::string out = "{\\rtf1\\ansi";
        WriteWord("ansicpg", document_page_, out);
        out += "\\uc1\\deff0";
        fonts_.Write(out);
        colours_.Write(out);
        out.append("\n").append(body_).append("}");
        return {std::move(out), dropped_};
    }

  private:
    enum class Place { Body, Fonts, Colours, Nowhere };

    /// What a group inherits from the one around it and forgets at its end.
    struct Group {
        Place place = Place::Body;
        CharacterFormat character;
        ParagraphFormat paragraph;
        bool deleted = false;
        bool either_form = false;  // \upr: an ANSI form, then the same in Unicode
        int skip_count = 1;        // of \u
    };

    void Take(const RtfToken& token) {
        switch (token.kind) {
            case RtfToken::Kind::Open: Open(); break;
            case RtfToken::Kind::Close: Close(); break;
            case RtfToken::Kind::Word: Word(token); break;
            case RtfToken::Kind::Symbol: Symbol(token.byte); break;
            case RtfToken::Kind::Hex: Bytes({&token.byte, 1}); break;
            case RtfToken::Kind::Text: Bytes(token.text); break;
            case RtfToken::Kind::End: finished_ = true; break;
        }
    }

    void Open() {
        fallback_.End();
        starred_ = false;
        if (outer_.size() >= kDeepestGroup) {
            ++too_deep_;
        } else {
            outer_.push_back(group_);
        }
    }

    void Close() {
        fallback_.End();
        starred_ = false;
        if (too_deep_ > 0) {
            --too_deep_;
            return;
        }
        finished_ = outer_.size() <= 1;
        if (finished_) return;
        group_ = std::move(outer_.back());
        outer_.pop_back();
    }

    void Symbol(char symbol) {
        starred_ = symbol == '*';
        if (starred_ || fallback_.TakesOne()) return;
        switch (symbol) {
            case '\\':
            case '{':
            case '}': Character(static_cast<wchar_t>(symbol)); break;
            case '~': Character(0x00A0); break;
            case '_':
            case '-': Control(symbol == '_' ? "\\_" : "\\-"); break;
            case '\t': Control("\\tab "); break;
            case '\r':
            case '\n': EndParagraph(); break;
            default: break;
        }
    }

    void Word(const RtfToken& word) {
        const bool starred = std::exchange(starred_, false);
        if (IsMissed(word.text) && group_.place != Place::Nowhere) dropped_ = true;
        if (fallback_.TakesOne() || word.text == "bin") return;
        if (starred ? Starred(word.text) : Destination(word.text)) return;
        switch (group_.place) {
            case Place::Fonts: fonts_.Take(word); break;
            case Place::Colours: colours_.Take(word); break;
            case Place::Body: Format(word); break;
            default: break;
        }
        Decoding(word);
    }

    /// A destination that readers who do not know it are to pass over.
    bool Starred(std::string_view word) {
        if (word == "ud" && group_.either_form) {
            group_.place = Place::Body;
            group_.either_form = false;
        } else {
            dropped_ |= word == "pn" && group_.place == Place::Body;
            group_.place = Place::Nowhere;
        }
        return true;
    }

    bool Destination(std::string_view word) {
        if (group_.place == Place::Nowhere) return word != "ud";
        if (word == "fonttbl") {
            group_.place = Place::Fonts;
            tables_changed_ = true;
        } else if (word == "colortbl") {
            group_.place = Place::Colours;
            tables_changed_ = true;
        } else if (word == "upr") {
            group_.either_form = group_.place == Place::Body;
            group_.place = Place::Nowhere;
        } else if (word == "pntext") {
            dropped_ = true;
        } else if (IsTextlessDestination(word) || IsLeftOut(word)) {
            group_.place = Place::Nowhere;
        } else {
            return false;
        }
        return true;
    }

    /// Words of the text itself.
    void Format(const RtfToken& word) {
        if (word.text == "plain") {
            group_.character = {};
            group_.character[CharacterProperty::Language] = default_language_;
        } else if (word.text == "deleted") {
            group_.deleted = !word.has_number || word.number != 0;
        } else if (word.text == "line") {
            Control("\\line ");
        } else if (Apply(word, group_.character) || Apply(word, group_.paragraph)) {
            return;
        } else if (const wchar_t character = CharacterOfWord(word.text)) {
            if (character == L'\n') {
                EndParagraph();
            } else if (character == L'\t') {
                Control("\\tab ");
            } else {
                Character(character);
            }
        }
    }

    /// Words that say how text is to be read, wherever they stand.
    void Decoding(const RtfToken& word) {
        if (word.text == "u") {
            Unicode(word.number);
        } else if (word.text == "uc") {
            group_.skip_count = std::clamp(word.number, 0, 1000);
        } else if (word.text == "deff") {
            fonts_.SetDefault(word.number);
        } else if (word.text == "deflang") {
            default_language_ = std::clamp(word.number, 0, 65535);
        } else if (word.text == "ansicpg") {
            const bool known = IsLeftToTheReader(word.number) ||
                               AnsiCodePage::Get(word.number).Number() == word.number;
            if (known) document_page_ = word.number;
        }
    }

    void Unicode(int value) {
        Characters(TextOfUnicodeWord(value));
        fallback_.Begin(group_.skip_count);
    }

    void Bytes(std::string_view bytes) {
        starred_ = false;
        bytes = fallback_.Behind(bytes);
        if (bytes.empty() || group_.place == Place::Nowhere || group_.deleted) return;
        if (group_.place == Place::Colours) return colours_.TakeText(bytes);
        const int charset = fonts_.Charset(group_.character[CharacterProperty::Font]);
        const int page = PageOfCharset(charset, document_page_);
        if (group_.place == Place::Body &&
            (IsLeftToTheReader(page) || IsLeftToTheReaderCharset(charset))) {
            return BytesAsTheyAre(bytes);
        }
        const AnsiCodePage& decoder = AnsiCodePage::Get(page);
        decoded_.clear();
        for (const char c : bytes) decoded_ += decoder.ToUnicode(static_cast<unsigned char>(c));
        Characters(decoded_);
    }

    void BytesAsTheyAre(std::string_view bytes) {
        constexpr std::string_view kHex = "0123456789abcdef";
        for (const char c : bytes) {
            const auto byte = static_cast<unsigned char>(c);
            if (c == '\t') Control("\\tab ");
            if (byte < 0x20 || byte == 0x7F) continue;
            WriteCharacterFormat();
            if (byte < 0x80) {
                if (c == '\\' || c == '{' || c == '}') paragraph_ += '\\';
                paragraph_ += c;
            } else {
                paragraph_.append("\\'").append(1, kHex[byte >> 4]).append(1, kHex[byte & 15]);
            }
        }
    }

    void Character(wchar_t character) { Characters({&character, 1}); }
    void Characters(std::wstring_view text) {
        switch (group_.place) {
            case Place::Body: break;
            case Place::Fonts: return fonts_.TakeText(text);
            default: return;
        }
        if (group_.deleted) return;
        while (!text.empty()) {
            const auto unfit = std::find_if(text.begin(), text.end(), IsUnfit);
            const auto fit = static_cast<std::size_t>(unfit - text.begin());
            if (fit > 0) {
                WriteCharacterFormat();
                WriteRtfText(text.substr(0, fit), paragraph_);
            }
            if (unfit != text.end() && *unfit == L'\t') Control("\\tab ");
            text.remove_prefix(std::min(fit + 1, text.size()));
        }
    }

    /// A control word or symbol of the text.
    void Control(std::string_view written) {
        if (group_.place != Place::Body || group_.deleted) return;
        WriteCharacterFormat();
        paragraph_ += written;
    }

    void WriteCharacterFormat() {
        if (any_written_ && !tables_changed_ && group_.character == read_) return;
        CharacterFormat wanted = group_.character;
        for (const auto property : {CharacterProperty::Foreground, CharacterProperty::Background}) {
            wanted[property] = colours_.Use(wanted[property]);
        }
        wanted[CharacterProperty::Font] = fonts_.Use(wanted[CharacterProperty::Font]);
        if (!any_written_) {
            // From here on nothing is left to what the rich text box has by itself.
            written_[CharacterProperty::Size] = 0;
            written_[CharacterProperty::Foreground] = 0;
            written_[CharacterProperty::Background] = 0;
            paragraph_ += "\\plain";
        }
        const std::size_t before = paragraph_.size();
        WriteChange(written_, wanted, paragraph_);
        if (paragraph_.size() > before || !any_written_) paragraph_ += ' ';
        written_ = wanted;
        read_ = group_.character;
        any_written_ = true;
        tables_changed_ = false;
    }

    void EndParagraph() {
        if (group_.place != Place::Body || group_.deleted) return;
        WriteCharacterFormat();
        paragraph_ += "\\par\n";
        FlushParagraph();
    }

    /// A paragraph has the format in force at its end.
    void FlushParagraph() {
        if (paragraph_.empty()) return;
        if (written_format_.empty() || group_.paragraph != written_paragraph_) {
            std::string format;
            Write(group_.paragraph, format);
            // Formats may differ in what is not written of them.
            if (format != written_format_) {
                body_ += format;
                // Ends the last word; behind a group it would be text.
                if (body_.back() != '}') body_ += ' ';
                written_format_ = std::move(format);
            }
            written_paragraph_ = group_.paragraph;
        }
        body_ += paragraph_;
        paragraph_.clear();
    }

    RtfLexer lexer_;
    RtfFonts fonts_;
    RtfColours colours_;
    int document_page_ = 1252;
    int default_language_ = CharacterFormat()[CharacterProperty::Language];

    Group group_;
    std::vector<Group> outer_;
    std::size_t too_deep_ = 0;
    bool finished_ = false;
    bool starred_ = false;
    RtfFallback fallback_;
    bool dropped_ = false;

    std::string body_;
    std::string paragraph_;  // the one that is being read, without its format
    std::wstring decoded_;
    bool any_written_ = false;
    /// A table may have given another meaning to numbers since they were written.
    bool tables_changed_ = false;
    /// The same format twice: with the numbers of the document read, and of that written.
    CharacterFormat read_;
    CharacterFormat written_;
    ParagraphFormat written_paragraph_;
    std::string written_format_;  // the same as it was written; empty before the first
};

}  // namespace

RewrittenRtf RewriteRtf(std::string_view rtf, std::wstring_view default_face) {
    return Rewriter(rtf, default_face).Rewrite();
}

}  // namespace wordhawk
