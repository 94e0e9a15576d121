#pragma once

#include <cstdint>
#include <string_view>

namespace wordhawk {

/// Display of a long operation and the way to stop it. The default does nothing and never cancels,
/// so an operation can always be given one.
class Progress {
  public:
    virtual ~Progress() = default;
    virtual void Show(std::wstring_view /*title*/) {}
    virtual void Hide() {}
    virtual void SetCaption(std::wstring_view /*caption*/) {}
    /// What is being worked on, such as one word; given often and shown now and then.
    virtual void SetDetail(std::wstring_view /*detail*/) {}
    virtual void SetRange(std::uint64_t /*maximum*/) {}
    virtual void SetPosition(std::uint64_t /*position*/) {}
    /// Whether caption and position are wanted now: work of many small steps tells of those steps
    /// only for which it is asked here.
    virtual bool IsDue() { return false; }
    /// Lets waiting messages through and says whether the user asked to stop.
    virtual bool YieldAndAskCancel() { return false; }
};

}  // namespace wordhawk
