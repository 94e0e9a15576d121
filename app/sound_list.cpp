#include "app/sound_list.h"

#include "platform/modSect.h"

#include <algorithm>

namespace wordhawk {
namespace {

constexpr std::wstring_view kSection = L"Sounds";
constexpr std::size_t kMostRemembered = 12;

Path ListFile(const ProgramState& state) { return state.SoundsFolder() / "wavpick.ini"; }

std::vector<std::wstring> Remembered(const ProgramState& state) {
    std::vector<std::wstring> paths;
    for (std::size_t i = 0; i < kMostRemembered; ++i) {
        std::wstring path = modSect::ReadSetting(kSection, std::to_wstring(i), {}, ListFile(state));
        if (!path.empty()) paths.push_back(std::move(path));
    }
    return paths;
}

}  // namespace

std::vector<SoundChoice> SoundChoices(const ProgramState& state) {
    std::vector<SoundChoice> choices;
    for (const std::wstring& name : ListFiles(state.SoundsFolder(), L".wav")) {
        choices.push_back({name, TextFromPath(state.SoundsFolder() / PathFromText(name))});
    }
    for (const std::wstring& path : Remembered(state)) {
        const bool listed = std::any_of(choices.begin(), choices.end(), [&](const auto& choice) {
            return EqualIgnoringCase(choice.path, path);
        });
        if (!listed && IsFile(PathFromText(path))) choices.push_back({path, path});
    }
    return choices;
}

bool RememberSound(const ProgramState& state, const std::wstring& path) {
    std::vector<std::wstring> paths = Remembered(state);
    std::erase_if(paths, [&](const std::wstring& known) { return EqualIgnoringCase(known, path); });
    paths.insert(paths.begin(), path);
    if (paths.size() > kMostRemembered) paths.resize(kMostRemembered);
    std::vector<modSect::KeyAndValue> values;
    for (const std::wstring& known : paths) {
        values.push_back({std::to_wstring(values.size()), known});
    }
    return modSect::WriteSettings(kSection, values, ListFile(state));
}

}  // namespace wordhawk
