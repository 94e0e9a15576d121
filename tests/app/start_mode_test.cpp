#include "app/start_mode.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

TEST(StartMode, FirstSwitchDecides) {
    const struct {
        const wchar_t* line;
        StartMode mode;
        RegisterFor whom;
        bool quiet;
    } cases[] = {
        {L"", StartMode::Program, RegisterFor::User, false},
        {L"C:\\letter.txt", StartMode::Program, RegisterFor::User, false},
        {L"letter.txt /RegServer", StartMode::Program, RegisterFor::User, false},
        {L"\"/RegServer\"", StartMode::Program, RegisterFor::User, false},
        {L"/RegServers", StartMode::Program, RegisterFor::User, false},
        {L"/", StartMode::Program, RegisterFor::User, false},
        {L"/Automation -Embedding", StartMode::Automation, RegisterFor::User, false},
        {L"-Embedding", StartMode::Automation, RegisterFor::User, false},
        {L" /EMBEDDING ", StartMode::Automation, RegisterFor::User, false},
        {L"/RegServer", StartMode::Register, RegisterFor::User, false},
        {L"-regserver\t/quiet  /allusers", StartMode::Register, RegisterFor::Machine, true},
        {L"/UnregServer /AllUsers", StartMode::Unregister, RegisterFor::Machine, false},
    };
    for (const auto& c : cases) {
        const StartRequest request = StartRequestFrom(c.line);
        EXPECT_EQ(request.mode, c.mode) << testing::PrintToString(std::wstring(c.line));
        EXPECT_EQ(request.whom, c.whom) << testing::PrintToString(std::wstring(c.line));
        EXPECT_EQ(request.quiet, c.quiet) << testing::PrintToString(std::wstring(c.line));
    }
}

}  // namespace
}  // namespace wordhawk
