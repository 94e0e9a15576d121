#include "platform/win32/system_sound.h"
#include "platform/win32/win.h"

#include <mmsystem.h>

#include <string>

namespace wordhawk {

bool SystemSound::Play(std::wstring_view file) {
    return sndPlaySoundW(std::wstring(file).c_str(), SND_ASYNC | SND_NODEFAULT) != FALSE;
}

}  // namespace wordhawk
