#include "platform/win32/system_sound.h"
#include "platform/win32/system_library.h"

#include <mmsystem.h>

#include <string>

namespace wordhawk {

bool SystemSound::Play(std::wstring_view file) {
    static const auto play = SystemFunction<decltype(sndPlaySoundW)>(L"winmm.dll", "sndPlaySoundW");
    return play != nullptr && play(std::wstring(file).c_str(), SND_ASYNC | SND_NODEFAULT) != FALSE;
}

}  // namespace wordhawk
