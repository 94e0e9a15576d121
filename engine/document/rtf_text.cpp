#include "engine/document/rtf_text.h"

#include "engine/document/rtf_lexer.h"
#include "engine/document/rtf_unicode.h"
#include "engine/document/rtf_vocabulary.h"
#include "platform/text.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

namespace wordhawk {
namespace {

constexpr std::size_t kDeepestGroup = 1000;
constexpr std::size_t kMostFonts = 10000;

}  // namespace

class RtfTextReader::Reader {
  public:
    /// Appends the text of all tokens up to the lexer's end, or the document's.
    void Read(RtfLexer& lexer, std::wstring& text) {
        text_ = &text;
        while (!finished_) {
            const RtfToken token = lexer.Next();
            if (token.kind == RtfToken::Kind::End) break;
            Take(token);
        }
    }
    bool AtEnd() const { return finished_; }

  private:
    /// What a group inherits from the one around it and forgets at its end.
    struct Group {
        bool skip = false;  // holds no text of the document
        bool hidden = false;
        bool deleted = false;
        bool fonts = false;        // the font table
        bool either_form = false;  // \upr: an ANSI form, then the same in Unicode
        bool separate = false;     // ends with a line break
        const AnsiCodePage* page = &AnsiCodePage::Get(1252);
        int skip_count = 1;  // of \u
    };

    void Take(const RtfToken& token) {
        switch (token.kind) {
            case RtfToken::Kind::Open: OpenGroup(); break;
            case RtfToken::Kind::Close: CloseGroup(); break;
            case RtfToken::Kind::Word: ControlWord(token); break;
            case RtfToken::Kind::Symbol: Symbol(token.byte); break;
            case RtfToken::Kind::Hex: Bytes({&token.byte, 1}); break;
            case RtfToken::Kind::Text: Bytes(token.text); break;
            case RtfToken::Kind::End: break;
        }
    }

    void OpenGroup() {
        fallback_.End();
        starred_ = false;
        if (outer_.size() >= kDeepestGroup) {
            ++too_deep_;
            return;
        }
        outer_.push_back(group_);
        group_.separate = false;
    }

    void CloseGroup() {
        fallback_.End();
        starred_ = false;
        if (too_deep_ > 0) {
            --too_deep_;
            return;
        }
        if (group_.separate && !group_.skip) Append(L'\n');
        if (outer_.empty()) {
            finished_ = true;
            return;
        }
        group_ = outer_.back();
        outer_.pop_back();
        finished_ = outer_.empty();
    }

    void Symbol(char symbol) {
        starred_ = symbol == '*';
        if (starred_) return;
        if (fallback_.TakesOne()) return;
        switch (symbol) {
            case '\\':
            case '{':
            case '}': Append(symbol); break;
            case '~': Append(0x00A0); break;
            case '_': Append(L'-'); break;  // a hyphen that holds its line: splits words like any
            case '\t': Append(L'\t'); break;
            case '\r':
            case '\n': Append(L'\n'); break;
            default: break;  // "\-" among them: a place where a word may be cut, no character of it
        }
    }

    void ControlWord(const RtfToken& token) {
        const bool starred = starred_;
        starred_ = false;
        if (fallback_.TakesOne() || token.text == "bin") return;
        if (starred) {
            Starred(token.text);
        } else if (!Destination(token.text)) {
            Formatting(token.text, token.number, token.has_number);
        }
    }

    /// A destination that readers who do not know it are to pass over.
    void Starred(std::string_view word) {
        if (word == "ud" && group_.either_form) {
            group_.skip = false;
            group_.either_form = false;
        } else if (word != "shpinst") {
            group_.skip = true;
        }
    }

    bool Destination(std::string_view word) {
        if (word == "fonttbl") {
            group_.fonts = true;
            group_.skip = true;
        } else if (word == "upr") {
            group_.either_form = !group_.skip;
            group_.skip = true;
        } else if (IsSeparateDestination(word)) {
            if (!group_.skip) Append(L'\n');
            group_.separate = true;
        } else if (IsTextlessDestination(word)) {
            group_.skip = true;
        } else {
            return false;
        }
        return true;
    }

    void Formatting(std::string_view word, int value, bool has_number) {
        const bool on = !has_number || value != 0;
        if (word == "u") {
            Unicode(value);
        } else if (word == "uc") {
            group_.skip_count = std::clamp(value, 0, 1000);
        } else if (word == "v") {
            group_.hidden = on;
        } else if (word == "deleted") {
            group_.deleted = on;
        } else if (word == "plain") {
            group_.hidden = false;
            group_.page = PageOfFont(default_font_);
        } else if (word == "f") {
            font_in_table_ = value;
            if (!group_.fonts) group_.page = PageOfFont(value);
        } else if (word == "fcharset") {
            if (group_.fonts && charset_of_font_.size() < kMostFonts) {
                charset_of_font_[font_in_table_] = value;
            }
        } else if (word == "deff") {
            default_font_ = value;
        } else if (word == "ansicpg") {
            document_page_ = value;
            group_.page = &AnsiCodePage::Get(value);
        } else {
            if (const wchar_t symbol = CharacterOfWord(word)) Append(symbol);
        }
    }

    const AnsiCodePage* PageOfFont(int font) const {
        const auto found = charset_of_font_.find(font);
        return &AnsiCodePage::Get(found == charset_of_font_.end()
                                      ? document_page_
                                      : PageOfCharset(found->second, document_page_));
    }

    void Unicode(int value) {
        for (const wchar_t unit : TextOfUnicodeWord(value)) Append(unit);
        fallback_.Begin(group_.skip_count);
    }

    void Bytes(std::string_view bytes) {
        starred_ = false;
        bytes = fallback_.Behind(bytes);
        if (group_.skip || group_.hidden || group_.deleted) return;
        for (const char c : bytes) {
            const auto byte = static_cast<unsigned char>(c);
            text_->push_back(byte < 0x80 ? static_cast<wchar_t>(byte)
                                         : group_.page->ToUnicode(byte));
        }
    }

    void Append(wchar_t character) {
        if (!group_.skip && !group_.hidden && !group_.deleted) text_->push_back(character);
    }

    std::wstring* text_ = nullptr;
    Group group_;
    std::vector<Group> outer_;
    std::size_t too_deep_ = 0;
    bool finished_ = false;
    bool starred_ = false;
    RtfFallback fallback_;
    int document_page_ = 1252;
    int default_font_ = 0;
    int font_in_table_ = 0;
    std::unordered_map<int, int> charset_of_font_;
};

bool LooksLikeRtf(std::string_view bytes) { return bytes.starts_with("{\\rtf"); }

std::wstring RtfToText(std::string_view rtf) {
    std::wstring text;
    RtfTextReader reader;
    reader.Feed(rtf, text);
    reader.Finish(text);
    return text;
}

RtfTextReader::RtfTextReader() : reader_(std::make_unique<Reader>()) {}
RtfTextReader::~RtfTextReader() = default;

void RtfTextReader::Feed(std::string_view piece, std::wstring& text) {
    const std::size_t raw = std::min(raw_left_, piece.size());
    raw_left_ -= raw;
    piece.remove_prefix(raw);
    if (raw_left_ > 0) return;
    if (!waiting_.empty()) {
        waiting_.append(piece);
        if (waiting_.size() < try_at_) return;
        piece = waiting_;
    }
    RtfLexer lexer(piece, RtfLexer::Input::Piece);
    reader_->Read(lexer, text);
    raw_left_ = lexer.RawBytesLeft();
    waiting_ = std::string(piece.substr(lexer.Used()));
    try_at_ = 2 * waiting_.size();
}

void RtfTextReader::Finish(std::wstring& text) {
    RtfLexer lexer(waiting_);
    reader_->Read(lexer, text);
    waiting_.clear();
}

bool RtfTextReader::AtEnd() const { return reader_->AtEnd(); }

}  // namespace wordhawk
