#include "engine/document/rtf_lexer.h"

#include <algorithm>
#include <cstdint>

namespace wordhawk {
namespace {

constexpr std::size_t kLongestWord = 32;

int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsPlain(char c) { return c != '\\' && c != '{' && c != '}' && c != '\r' && c != '\n'; }

}  // namespace

RtfToken RtfLexer::Next() {
    RtfToken token;
    while (at_ < rtf_.size()) {
        const std::size_t start = at_;
        const char c = rtf_[at_++];
        switch (c) {
            case '{': token.kind = RtfToken::Kind::Open; return token;
            case '}': token.kind = RtfToken::Kind::Close; return token;
            case '\r':
            case '\n': break;
            case '\\': {
                const bool is_token = Control(token);
                if (input_ == Input::Piece && at_ == rtf_.size() && raw_left_ == 0) {
                    at_ = start;
                    return {};
                }
                if (is_token) return token;
                break;
            }
            default:
                while (at_ < rtf_.size() && IsPlain(rtf_[at_])) ++at_;
                token.kind = RtfToken::Kind::Text;
                token.text = rtf_.substr(start, at_ - start);
                return token;
        }
    }
    return {};
}

/// What follows a backslash: a control word, or a control symbol of one character.
bool RtfLexer::Control(RtfToken& token) {
    if (at_ >= rtf_.size()) return false;
    if (IsLetter(rtf_[at_])) {
        Word(token);
        return true;
    }
    token.byte = rtf_[at_++];
    if (token.byte == '\'') return Hex(token);
    token.kind = RtfToken::Kind::Symbol;
    return true;
}

bool RtfLexer::Hex(RtfToken& token) {
    int value = 0;
    int digits = 0;
    while (digits < 2 && at_ < rtf_.size() && HexDigit(rtf_[at_]) >= 0) {
        value = value * 16 + HexDigit(rtf_[at_++]);
        ++digits;
    }
    token.kind = RtfToken::Kind::Hex;
    token.byte = static_cast<char>(value);
    return digits == 2;
}

void RtfLexer::Word(RtfToken& token) {
    const std::size_t start = at_;
    while (at_ < rtf_.size() && IsLetter(rtf_[at_]) && at_ - start < kLongestWord) ++at_;
    token.kind = RtfToken::Kind::Word;
    token.text = rtf_.substr(start, at_ - start);
    // A piece that ends in "-" may go on with digits.
    if (input_ == Input::Piece && at_ + 1 == rtf_.size() && rtf_[at_] == '-') at_ = rtf_.size();
    const bool negative = at_ + 1 < rtf_.size() && rtf_[at_] == '-' && IsDigit(rtf_[at_ + 1]);
    if (negative) ++at_;
    std::int64_t number = 0;
    for (; at_ < rtf_.size() && IsDigit(rtf_[at_]); ++at_) {
        token.has_number = true;
        number = number * 10 + (rtf_[at_] - '0');
        if (number > INT32_MAX) token.out_of_range = true;
        number = std::min<std::int64_t>(number, INT32_MAX);
    }
    token.number = static_cast<int>(negative ? -number : number);
    if (at_ < rtf_.size() && rtf_[at_] == ' ') ++at_;
    const bool may_go_on = input_ == Input::Piece && at_ == rtf_.size();
    if (token.text == "bin" && token.number > 0 && !may_go_on) {
        const auto raw = static_cast<std::size_t>(token.number);
        const std::size_t here = std::min(rtf_.size() - at_, raw);
        at_ += here;
        raw_left_ = raw - here;
    }
}

}  // namespace wordhawk
