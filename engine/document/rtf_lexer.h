#pragma once

#include <cstddef>
#include <string_view>

namespace wordhawk {

/// One step of an RTF document.
struct RtfToken {
    enum class Kind { Open, Close, Word, Symbol, Hex, Text, End };

    Kind kind = Kind::End;
    /// Text: bytes as they stand. Word: its name, at most 32 letters.
    std::string_view text;
    /// Symbol: the character behind the backslash. Hex: the byte that \'hh stands for.
    char byte = 0;
    bool has_number = false;
    /// The number lies beyond 31 bits; `number` is the nearest that is not.
    bool out_of_range = false;
    int number = 0;
};

/// Cuts RTF into tokens. Never fails: what makes no sense is passed over. Line ends of the file are
/// passed over too, and so are the raw bytes that \bin announces, whose token is the word alone.
class RtfLexer {
  public:
    /// Whether `rtf` is all that there is, or more follows: a token that may go on is then not
    /// given.
    enum class Input { Whole, Piece };

    /// `rtf` must outlive the lexer and its tokens.
    explicit RtfLexer(std::string_view rtf, Input input = Input::Whole)
        : rtf_(rtf), input_(input) {}

    RtfToken Next();

    /// After the end of a piece: how much of it was used. The next piece begins with the rest,
    std::size_t Used() const { return at_; }
    /// behind as many bytes more of raw data that are to be passed over.
    std::size_t RawBytesLeft() const { return raw_left_; }

  private:
    bool Control(RtfToken& token);
    bool Hex(RtfToken& token);
    void Word(RtfToken& token);

    std::string_view rtf_;
    Input input_;
    std::size_t at_ = 0;
    std::size_t raw_left_ = 0;
};

}  // namespace wordhawk
