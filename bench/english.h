#pragma once

#include "engine/program.h"

#include <string>
#include <vector>

namespace wordhawk::bench {

/// A Program with fresh settings and the shipped English dictionary, in a temporary data folder
/// that goes with it. Ends the run with a message when the dictionary is not built.
Program& English();

/// Pairs of a misspelling and its correction, the kinds that people make.
struct Pair {
    std::wstring wrong;
    std::wstring right;
};
const std::vector<Pair>& Pairs();

/// About a megabyte of English: data/sample.txt over and over.
const std::wstring& Megabyte();

}  // namespace wordhawk::bench
