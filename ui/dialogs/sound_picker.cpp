#include "ui/dialogs/sound_picker.h"

#include "app/sound_list.h"
#include "app/version.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"
#include "ui/dialogs/dialog_ids.h"
#include "ui/framework/FormDialog.h"
#include "ui/framework/controls/Button.h"
#include "ui/framework/controls/Label.h"
#include "ui/framework/controls/ListBox.h"
#include "ui/framework/themed_drawing.h"

#include <algorithm>

namespace wordhawk {
namespace {

using modLoadRes::LoadResText;

class SoundPicker : public FormDialog {
  public:
    SoundPicker(const ProgramState& state, Desktop& desktop, std::wstring current)
        : picked(std::move(current)), state_(state), desktop_(desktop) {}

    std::wstring picked;

    std::vector<FormControl*> Controls() override {
        return {&prompt_, &list_, &play_, &browse_, &news_, &ok_, &cancel_};
    }

  protected:
    Look WantedLook() const override {
        Look look = FormDialog::WantedLook();
        look.class_name = L"WordhawkSoundPicker";
        return look;
    }
    void MakeControls() override {
        const auto at = [this](int id) { return Control::Where{handle_, id, &Tips()}; };
        prompt_.Create(at(sound_id::prompt), Label::Kind::Caption);
        list_.Create(at(sound_id::list));
        play_.Create(at(sound_id::play));
        browse_.Create(at(sound_id::browse));
        news_.Create(at(sound_id::path), Label::Kind::Path);
        ok_.Create(at(IDOK));
        cancel_.Create(at(IDCANCEL));
        ok_.SetDefault(true);
    }
    void Form_Load() override {
        SetCaption(FromUtf8(WORDHAWK_TITLE));
        prompt_.SetText(LoadResText(state_, text_id::kSoundPrompt));
        play_.SetText(LoadResText(state_, text_id::kPlay));
        browse_.SetText(LoadResText(state_, text_id::kBrowse));
        ok_.SetText(LoadResText(state_, text_id::kOk));
        cancel_.SetText(LoadResText(state_, text_id::kCancel));
        FillList();
    }
    layout::NodePtr Layout() const override {
        using namespace layout;
        NodePtr buttons =
            Column(7, List(Item(play_, {0, kButtonHeight}), Item(browse_, {0, kButtonHeight})));
        return Margin(11,
                      Column(7, List(Text(prompt_),
                                     Row(7, List(Item(list_, {250, 170}, 1), std::move(buttons))),
                                     Item(news_, {100, kFieldHeight}),
                                     Row(7, List(Space({0, 0}, 1), Item(ok_, {80, kButtonHeight}),
                                                 Item(cancel_, {80, kButtonHeight}))))));
    }
    const Control& FirstControl() const override { return list_; }
    void OnMeasure() override { list_.SetItemHeight(EntryHeight(Font(), Dpi())); }

    bool OnCommand(const ControlEvent& event) override {
        switch (event.id) {
            case IDOK: Close(IDOK); return true;
            case IDCANCEL: Close(IDCANCEL); return true;
            case sound_id::play: Play(); return true;
            case sound_id::browse: Browse(); return true;
            case sound_id::list:
                if (event.code == LBN_SELCHANGE) TakeSelected();
                if (event.code == LBN_DBLCLK) Play();
                return true;
            default: return false;
        }
    }
    bool OnDrawItem(const DRAWITEMSTRUCT& item) override {
        if (item.hwndItem != list_.Handle()) return false;
        const int row = static_cast<int>(item.itemID);
        DrawEntry(Colours(), item, row < 0 ? std::wstring() : list_.Item(row));
        return true;
    }

  private:
    /// First the entry for no sound, then the sounds, with `picked` among them.
    void FillList() {
        choices_ = SoundChoices(state_);
        const auto is_picked = [this](const SoundChoice& choice) {
            return EqualIgnoringCase(choice.path, picked);
        };
        if (!picked.empty() && std::none_of(choices_.begin(), choices_.end(), is_picked)) {
            choices_.push_back({picked, picked});
        }
        list_.Clear();
        list_.Append(LoadResText(state_, text_id::kNoSound));
        for (const SoundChoice& choice : choices_) list_.Append(choice.name);
        const auto at = std::find_if(choices_.begin(), choices_.end(), is_picked);
        list_.Select(picked.empty() ? 0 : static_cast<int>(at - choices_.begin()) + 1);
        Show();
    }
    void TakeSelected() {
        const int row = list_.Selected();
        picked = row <= 0 ? std::wstring() : choices_[static_cast<std::size_t>(row - 1)].path;
        Show();
    }
    void Show() {
        news_.SetText(picked);
        play_.SetEnabled(!picked.empty());
    }
    void Play() {
        TakeSelected();
        if (!picked.empty() && !desktop_.sound.Play(picked)) {
            news_.SetText(LoadResText(state_, text_id::kCannotPlay));
        }
    }
    void Browse() {
        const std::wstring filters =
            LoadResText(state_, text_id::kSoundFiles) + std::wstring(L"\0*.wav", 7) + L'\0';
        const auto file = desktop_.files.AskFile(handle_, LoadResText(state_, text_id::kOpen),
                                                 filters, state_.SoundsFolder());
        if (!file) return;
        picked = TextFromPath(*file);
        if (file->parent_path() != state_.SoundsFolder()) RememberSound(state_, picked);
        FillList();
    }

    const ProgramState& state_;
    Desktop& desktop_;
    std::vector<SoundChoice> choices_;
    Label prompt_;
    ListBox list_;
    Button play_;
    Button browse_;
    /// The path of the sound, or why it cannot be heard.
    Label news_;
    Button ok_;
    Button cancel_;
};

}  // namespace

std::optional<std::wstring> PickSound(const ProgramState& state, Desktop& desktop, HWND owner,
                                      const std::wstring& current) {
    SoundPicker picker(state, desktop, current);
    if (picker.ShowModal(owner) != IDOK) return std::nullopt;
    return picker.picked;
}

}  // namespace wordhawk
