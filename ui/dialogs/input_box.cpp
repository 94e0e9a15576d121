#include "ui/dialogs/input_box.h"

#include "lang/apply_language.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"
#include "ui/dialogs/dialog_ids.h"
#include "ui/framework/FormDialog.h"
#include "ui/framework/controls/Button.h"
#include "ui/framework/controls/Edit.h"
#include "ui/framework/controls/Icon.h"
#include "ui/framework/controls/Label.h"
#include "ui/resource.h"

namespace wordhawk {
namespace {

class InputBox : public FormDialog {
  public:
    InputBox(const ProgramState& state, const InputRequest& request)
        : state_(state), request_(request) {}

    std::wstring answer;

    std::vector<FormControl*> Controls() override { return {&prompt_, &ok_, &cancel_}; }

  protected:
    Look WantedLook() const override {
        Look look = FormDialog::WantedLook();
        look.class_name = L"WordhawkInputBox";
        return look;
    }
    void MakeControls() override {
        icon_.Create({handle_, -1}, WORDHAWK_ICON);
        prompt_.Create({handle_, input_id::prompt}, Label::Kind::Caption);
        text_.Create({handle_, input_id::text});
        ok_.Create({handle_, IDOK});
        cancel_.Create({handle_, IDCANCEL});
        ok_.SetDefault(true);
    }
    void Form_Load() override {
        SetCaption(request_.title);
        prompt_.SetText(request_.prompt);
        text_.SetText(request_.text);
        text_.SetLongest(request_.longest);
        text_.SelectAll();
        ok_.SetText(modLoadRes::LoadResText(state_, text_id::kOk));
        cancel_.SetText(modLoadRes::LoadResText(state_, text_id::kCancel));
    }
    layout::NodePtr Layout() const override {
        using namespace layout;
        NodePtr question = Column(5, List(Text(prompt_), Item(text_, {260, kFieldHeight})));
        return Margin(
            11,
            Column(11,
                   List(Row(11, List(Column(0, List(Item(icon_, {32, 32}))), std::move(question))),
                        Row(7, List(Space({0, 0}, 1), Item(ok_, {80, kButtonHeight}),
                                    Item(cancel_, {80, kButtonHeight}))))));
    }
    const Control& FirstControl() const override { return text_; }
    bool OnCommand(const ControlEvent& event) override {
        if (event.id == IDOK) {
            answer = text_.Text();
            Close(IDOK);
        } else if (event.id == IDCANCEL) {
            Close(IDCANCEL);
        } else {
            return false;
        }
        return true;
    }

  private:
    const ProgramState& state_;
    const InputRequest& request_;
    Icon icon_;
    Label prompt_;
    Edit text_;
    Button ok_;
    Button cancel_;
};

}  // namespace

std::optional<std::wstring> AskForText(const ProgramState& state, HWND owner,
                                       const InputRequest& request) {
    InputBox box(state, request);
    if (box.ShowModal(owner) != IDOK) return std::nullopt;
    return box.answer;
}

}  // namespace wordhawk
