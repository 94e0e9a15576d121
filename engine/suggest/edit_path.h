#pragma once

#include "engine/suggest/edit.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace wordhawk {

/// A word as the costs see it: its bytes, to tell equal characters, and their letters.
struct Spelling {
    static constexpr std::size_t kLongest = 64;

    std::array<char, kLongest> bytes;
    std::array<Letter, kLongest> letters;
    int size = 0;

    Letter At(int i) const {
        return i < 0       ? letters::kBeginning
               : i >= size ? letters::kEnd
                           : letters[static_cast<std::size_t>(i)];
    }
    char ByteAt(int i) const { return bytes[static_cast<std::size_t>(i)]; }
};

/// The first bytes of a word, as many as a Spelling holds, with the letters of its code page.
inline Spelling SpellingOf(std::string_view word, const std::array<Letter, 256>& letters_of_page) {
    Spelling spelling;
    spelling.size = static_cast<int>(std::min(word.size(), Spelling::kLongest));
    for (std::size_t i = 0; i < static_cast<std::size_t>(spelling.size); ++i) {
        spelling.bytes[i] = word[i];
        spelling.letters[i] = letters_of_page[static_cast<unsigned char>(word[i])];
    }
    return spelling;
}

/// Finds the cheapest way of edits from the word that was meant to the word that was written.
/// `Costs` has `float Of(const Edit&)`, never negative. Only the part between the first and the
/// last difference, with kSlack letters on both sides, is looked at: what is equal there is meant
/// so.
template <class Costs>
class EditPath {
  public:
    static constexpr int kSlack = 2;
    /// Steps further off the diagonal than the difference in length are not tried.
    static constexpr int kBand = 2;
    static constexpr float kNoWay = 1e6F;

    explicit EditPath(Costs& costs) : costs_(costs) {}

    /// The cost of the way, kNoWay when there is none within the band, and perhaps when it costs
    /// more than `most`.
    float Cost(const Spelling& meant, const Spelling& written, float most = kNoWay) {
        meant_ = &meant;
        written_ = &written;
        int equal = 0;
        const int shorter = std::min(meant.size, written.size);
        while (equal < shorter && meant.ByteAt(equal) == written.ByteAt(equal)) ++equal;
        int equal_behind = 0;
        while (equal_behind < shorter - equal &&
               meant.ByteAt(meant.size - 1 - equal_behind) ==
                   written.ByteAt(written.size - 1 - equal_behind))
            ++equal_behind;
        start_ = std::max(0, equal - kSlack);
        rows_ = std::min(meant.size, meant.size - equal_behind + kSlack) - start_;
        columns_ = std::min(written.size, written.size - equal_behind + kSlack) - start_;
        if (!Fill(most)) return kNoWay;
        return cells_[static_cast<std::size_t>(rows_)][static_cast<std::size_t>(columns_)].cost;
    }

    /// Calls `use(edit)` for every edit of the way that Cost found, the last one first.
    template <class Use>
    void ForEachEdit(Use&& use) const {
        int i = rows_;
        int j = columns_;
        while (i > 0 || j > 0) {
            const Cell& cell = cells_[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)];
            if (cell.rows == 0 && cell.columns == 0) return;  // no way was found
            i -= cell.rows;
            j -= cell.columns;
            if (cell.is_edit) use(EditAt(cell.kind, i, j));
        }
    }

  private:
    struct Cell {
        float cost;
        std::uint8_t rows;
        std::uint8_t columns;
        bool is_edit;
        EditKind kind;
    };
    static constexpr Cell kUnreached = {kNoWay, 0, 0, false, EditKind::Mistake};

    bool Fill(float most) {
        const int low = std::min(0, rows_ - columns_) - kBand;
        const int high = std::max(0, rows_ - columns_) + kBand;
        for (int i = 0; i <= rows_; ++i) {
            const int first = std::max(0, i - high - kBand);
            const int last = std::min(columns_, i - low + kBand);
            for (int j = first; j <= last; ++j) At(i, j) = kUnreached;
        }
        At(0, 0).cost = 0;
        // No way misses two rows after each other.
        float cheapest_before = 0;
        for (int i = 0; i <= rows_; ++i) {
            float cheapest = kNoWay;
            const int last = std::min(columns_, i - low);
            for (int j = std::max(0, i - high); j <= last; ++j) {
                const float cost = At(i, j).cost;
                if (cost > most || cost == kNoWay) continue;
                cheapest = std::min(cheapest, cost);
                Leave(i, j);
            }
            if (cheapest == kNoWay && cheapest_before == kNoWay) return false;
            cheapest_before = cheapest;
        }
        return true;
    }

    /// Tries every step out of a cell.
    void Leave(int i, int j) {
        const bool meant_left = i < rows_;
        const bool written_left = j < columns_;
        if (meant_left && written_left) {
            if (Meant(i) == Written(j)) {
                Step(i, j, 1, 1, 0, false, EditKind::Mistake);
            } else {
                Try(EditKind::Mistake, i, j, 1, 1);
            }
        }
        if (meant_left) Try(EditKind::Drop, i, j, 1, 0);
        if (written_left) Try(EditKind::Insert, i, j, 0, 1);
        if (!meant_left || !written_left) return;
        const bool two_meant = i + 1 < rows_;
        const bool two_written = j + 1 < columns_;
        if (two_meant && two_written && Meant(i) == Written(j + 1) && Meant(i + 1) == Written(j) &&
            Meant(i) != Meant(i + 1))
            Try(EditKind::Swap, i, j, 2, 2);
        if (Meant(i) == Written(j)) return;
        if (two_meant && Meant(i + 1) != Written(j)) Try(EditKind::TwoForOne, i, j, 2, 1);
        if (two_written && Meant(i) != Written(j + 1)) Try(EditKind::OneForTwo, i, j, 1, 2);
    }

    void Try(EditKind kind, int i, int j, std::uint8_t rows, std::uint8_t columns) {
        Step(i, j, rows, columns, costs_.Of(EditAt(kind, i, j)), true, kind);
    }

    void Step(int i, int j, std::uint8_t rows, std::uint8_t columns, float cost, bool is_edit,
              EditKind kind) {
        const float there = At(i, j).cost + cost;
        Cell& cell = At(i + rows, j + columns);
        if (there < cell.cost) cell = {there, rows, columns, is_edit, kind};
    }

    Edit EditAt(EditKind kind, int i, int j) const {
        const int m = start_ + i;
        const int w = start_ + j;
        Edit edit;
        edit.kind = kind;
        edit.before = meant_->At(m - 1);
        int meant = 1;
        switch (kind) {
            case EditKind::Drop: edit.meant = {meant_->At(m)}; break;
            case EditKind::Insert:
                edit.written = {written_->At(w)};
                meant = 0;
                break;
            case EditKind::Mistake:
                edit.meant = {meant_->At(m)};
                edit.written = {written_->At(w)};
                break;
            case EditKind::Swap:
                edit.meant = {meant_->At(m), meant_->At(m + 1)};
                meant = 2;
                break;
            case EditKind::TwoForOne:
                edit.meant = {meant_->At(m), meant_->At(m + 1)};
                edit.written = {written_->At(w)};
                meant = 2;
                break;
            case EditKind::OneForTwo:
                edit.meant = {meant_->At(m)};
                edit.written = {written_->At(w), written_->At(w + 1)};
                break;
        }
        edit.behind = meant_->At(m + meant);
        return edit;
    }

    char Meant(int i) const { return meant_->ByteAt(start_ + i); }
    char Written(int j) const { return written_->ByteAt(start_ + j); }
    Cell& At(int i, int j) {
        return cells_[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)];
    }

    Costs& costs_;
    const Spelling* meant_ = nullptr;
    const Spelling* written_ = nullptr;
    int start_ = 0;
    int rows_ = 0;
    int columns_ = 0;
    std::array<std::array<Cell, Spelling::kLongest + 3>, Spelling::kLongest + 3> cells_;
};

}  // namespace wordhawk
