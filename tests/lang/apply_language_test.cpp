#include "lang/apply_language.h"

#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <memory>

namespace wordhawk {
namespace {

/// A control that keeps what it is given, except properties that it was told to lack.
class FakeControl : public FormControl {
  public:
    explicit FakeControl(std::wstring type) : type_(std::move(type)) {}
    std::wstring TypeName() const override { return type_; }
    std::wstring Caption() const override { return caption; }
    void SetCaption(const std::wstring& text) override { caption = text; }
    std::wstring Tag() const override { return tag; }
    void SetTag(const std::wstring& text) override { tag = text; }
    std::wstring ToolTipText() const override { return tool_tip; }
    void SetToolTipText(const std::wstring& text) override { tool_tip = text; }
    std::vector<FormItem> Items() const override { return items; }
    void SetItems(const std::vector<FormItem>& changed) override { items = changed; }
    void ClearPicture() override { has_picture = false; }

    std::wstring caption;
    std::wstring tag;
    std::wstring tool_tip;
    std::vector<FormItem> items;
    bool has_picture = true;

  private:
    std::wstring type_;
};

/// A picture without any text property: every write of a text is lost.
class BareControl : public FormControl {
  public:
    std::wstring TypeName() const override { return L"Timer"; }
};

class FakeForm : public Form {
  public:
    std::wstring Caption() const override { return caption; }
    void SetCaption(const std::wstring& text) override { caption = text; }
    std::wstring Tag() const override { return tag; }
    void SetTag(const std::wstring& text) override { tag = text; }
    void ReleaseIcon() override { has_icon = false; }
    std::vector<FormControl*> Controls() override {
        std::vector<FormControl*> all;
        for (const auto& control : controls) all.push_back(control.get());
        return all;
    }
    FakeControl& Add(std::wstring type) {
        auto control = std::make_unique<FakeControl>(std::move(type));
        FakeControl& added = *control;
        controls.push_back(std::move(control));
        return added;
    }

    std::wstring caption = L"design";
    std::wstring tag;
    bool has_icon = true;
    std::vector<std::unique_ptr<FormControl>> controls;
};

FormItem Item(std::wstring caption, std::wstring tag, std::wstring tool_tip = {},
              std::wstring description = {}) {
    return {std::move(caption),     std::move(tag), std::move(tool_tip),
            std::move(description), false,          {}};
}

struct CaptionCase {
    const wchar_t* carrier;
    const wchar_t* caption;
    const char* reason;
};

const CaptionCase kCaptionCases[] = {
    {L"188", L"Preferences", "the id alone"},
    {L"&188", L"&Preferences", "an ampersand before the id"},
    {L"a188", L"design", "a letter before it"},
    {L"&a188", L"design", "a letter after the ampersand"},
    {L"&&188", L"design", "two ampersands"},
    {L"", L"design", "no id"},
    {L"&", L"design", "ampersand alone"},
    {L"114", L"C&ust.", "a text with its own accelerator"},
    {L"499", L"", "an id without text"},
};

TEST(ApplyLanguage, CaptionOfAControlComesFromItsTag) {
    for (const CaptionCase& row : kCaptionCases) {
        FakeForm form;
        FakeControl& button = form.Add(L"CommandButton");
        button.caption = L"design";
        button.tag = row.carrier;
        ApplyLanguage(ProgramState(), form);
        EXPECT_EQ(button.caption, row.caption) << row.reason;
        EXPECT_EQ(button.tag, row.carrier) << "stays for the next language: " << row.reason;
    }
}

TEST(ApplyLanguage, MenuCarriesItsIdInTheCaption) {
    for (const CaptionCase& row : kCaptionCases) {
        FakeForm form;
        FakeControl& menu = form.Add(L"Menu");
        menu.caption = row.carrier;
        menu.tag = L"115";
        ApplyLanguage(ProgramState(), form);
        const bool is_id = std::wstring_view(row.caption) != L"design";
        EXPECT_EQ(menu.caption, is_id ? row.caption : row.carrier) << row.reason;
    }
}

TEST(ApplyLanguage, FormAndToolTips) {
    FakeForm form;
    form.tag = L"208";
    FakeControl& label = form.Add(L"Label");
    label.tool_tip = L"115";
    FakeControl& other = form.Add(L"Label");
    other.tool_tip = L"&115";
    form.controls.push_back(std::make_unique<BareControl>());
    ApplyLanguage(ProgramState(), form);
    EXPECT_EQ(form.caption, L"Spelling");
    EXPECT_EQ(label.tool_tip, L"Cancel");
    EXPECT_EQ(other.tool_tip, L"&115") << "the ampersand is for captions";

    form.caption = L"design";
    form.tag = L"&208";
    ApplyLanguage(ProgramState(), form);
    EXPECT_EQ(form.caption, L"design");
}

TEST(ApplyLanguage, TabsButtonsAndColumns) {
    FakeForm form;
    FakeControl& tabs = form.Add(L"TabStrip");
    tabs.items = {Item(L"a", L"188", L"115"), Item(L"b", L"x", L"tip")};
    FakeControl& list = form.Add(L"ListView");
    list.items = {Item(L"a", L"231", L"115"), Item(L"b", L"")};
    FakeControl& bar = form.Add(L"Toolbar");
    bar.items = {Item(L"a", L"127", L"tip", L"182"), Item(L"b", L"", L"tip", L"text")};
    ApplyLanguage(ProgramState(), form);

    EXPECT_EQ(tabs.items[0].caption, L"Preferences");
    EXPECT_EQ(tabs.items[0].tool_tip, L"Cancel");
    EXPECT_EQ(tabs.items[1].caption, L"b");
    EXPECT_EQ(tabs.items[1].tool_tip, L"tip");
    EXPECT_EQ(list.items[0].caption, L"Word");
    EXPECT_EQ(list.items[0].tool_tip, L"115") << "columns have no tool tips";
    EXPECT_EQ(list.items[1].caption, L"b");
    EXPECT_EQ(bar.items[0].caption, L"a") << "a button's tag names its tool tip";
    EXPECT_EQ(bar.items[0].tool_tip, L"Copy");
    EXPECT_EQ(bar.items[0].description, L"Paste");
    EXPECT_EQ(bar.items[1].tool_tip, L"tip");
    EXPECT_EQ(bar.items[1].description, L"text");
}

TEST(ApplyLanguage, ButtonMenusStayEnglish) {
    const test::TempDir folder;
    ProgramState state;
    state.LanguageFile = folder / L"lang1031.ini";
    test::WriteBytes(state.LanguageFile, "[Wordhawk]\r\n115=Abbrechen\r\n");
    FakeForm form;
    FakeControl& bar = form.Add(L"Toolbar");
    FormItem drop_down = Item(L"", L"115");
    drop_down.drop_down = true;
    drop_down.button_menus = {Item(L"m", L"115"), Item(L"n", L"x")};
    FormItem plain = drop_down;
    plain.drop_down = false;
    bar.items = {drop_down, plain};
    ApplyLanguage(state, form);
    EXPECT_EQ(bar.items[0].tool_tip, L"Abbrechen");
    EXPECT_EQ(bar.items[0].button_menus[0].caption, L"Cancel");
    EXPECT_EQ(bar.items[0].button_menus[1].caption, L"n");
    EXPECT_EQ(bar.items[1].button_menus[0].caption, L"m") << "only drop-down buttons have menus";
}

TEST(ApplyLanguage, AgainInAnotherLanguage) {
    const test::TempDir folder;
    ProgramState state;
    FakeForm form;
    FakeControl& button = form.Add(L"CommandButton");
    button.tag = L"&115";
    ApplyLanguage(state, form);
    EXPECT_EQ(button.caption, L"&Cancel");
    state.LanguageFile = folder / L"lang1031.ini";
    test::WriteBytes(state.LanguageFile, "[Wordhawk]\r\n115=Abbrechen\r\n");
    ApplyLanguage(state, form);
    EXPECT_EQ(button.caption, L"&Abbrechen");
}

TEST(ClearFormTexts, EmptiesEverything) {
    FakeForm form;
    form.tag = L"1";
    form.controls.push_back(std::make_unique<BareControl>());
    const std::vector<std::wstring> types = {L"Menu",         L"TabStrip",   L"Toolbar",
                                             L"ListView",     L"Label",      L"CommandButton",
                                             L"OptionButton", L"PictureBox", L"Image"};
    std::vector<FakeControl*> controls;
    for (const std::wstring& type : types) {
        FakeControl& control = form.Add(type);
        control.caption = control.tag = control.tool_tip = L"x";
        FormItem item = Item(L"x", L"x", L"x", L"x");
        item.button_menus = {Item(L"x", L"x")};
        control.items = {item};
        controls.push_back(&control);
    }
    ClearFormTexts(form);
    for (const FakeControl* control : controls) {
        const std::wstring type = control->TypeName();
        EXPECT_EQ(control->caption + control->tag + control->tool_tip, L"") << Path(type);
        const bool is_list = type == L"TabStrip" || type == L"Toolbar" || type == L"ListView";
        const FormItem& item = control->items[0];
        EXPECT_EQ(item.caption + item.tag + item.tool_tip + item.description +
                      item.button_menus[0].caption + item.button_menus[0].tag,
                  is_list ? L"" : L"xxxxxx")
            << Path(type);
        const bool pictured = type == L"CommandButton" || type == L"OptionButton" ||
                              type == L"PictureBox" || type == L"Image";
        EXPECT_EQ(control->has_picture, !pictured) << Path(type);
    }
    EXPECT_EQ(form.caption + form.tag, L"");
    EXPECT_FALSE(form.has_icon);
}

}  // namespace
}  // namespace wordhawk
