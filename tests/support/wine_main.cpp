#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#ifdef _WIN32
extern "C" __declspec(dllimport) unsigned __stdcall SetErrorMode(unsigned mode);
#endif

// A crash must end the run with an error code, never wait behind an invisible box.
int main(int argc, char** argv) {
#ifdef _WIN32
    SetErrorMode(0x0001 | 0x0002 | 0x8000);
#endif
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
