#include "platform/modCDlg.h"

#include "platform/modSect.h"
#include "platform/win32/win.h"

#include <commdlg.h>

namespace wordhawk::modCDlg {
namespace {

constexpr std::size_t kNameBuffer = 260;
constexpr DWORD kOpenFlags = OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_HIDEREADONLY;
constexpr DWORD kSaveFlags = OFN_EXPLORER | OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY;
static_assert(kOpenFlags == 0x81004 && kSaveFlags == 0x80006);

/// The texts that a dialog record points into, and the record over them.
class Dialog {
  public:
    Dialog(const Request& request, std::wstring_view default_extension, DWORD flags)
        : filter_(request.filter),
          folder_(request.folder),
          title_(request.title),
          extension_(default_extension),
          name_(request.file_name) {
        filter_.append(2, L'\0');
        // A longer initial name has no padding; the dialog then refuses it by itself.
        if (name_.size() < kNameBuffer) name_.resize(kNameBuffer);
        record_.lStructSize = OPENFILENAME_SIZE_VERSION_400W;
        record_.hwndOwner = static_cast<HWND>(request.owner);
        record_.lpstrFilter = filter_.c_str();
        record_.nFilterIndex = static_cast<DWORD>(request.filter_index);
        record_.lpstrFile = name_.data();
        record_.nMaxFile = kNameBuffer;
        record_.lpstrInitialDir = folder_.empty() ? nullptr : folder_.c_str();
        record_.lpstrTitle = title_.empty() ? nullptr : title_.c_str();
        record_.lpstrDefExt = extension_.empty() ? nullptr : extension_.c_str();
        record_.Flags = flags;
    }

    OPENFILENAMEW* Record() { return &record_; }
    std::wstring FileName() const { return std::wstring(modSect::StripNull(name_)); }
    std::wstring FileTitle() const {
        return std::wstring(
            modSect::StripNull(std::wstring_view(name_).substr(record_.nFileOffset)));
    }

  private:
    std::wstring filter_;
    std::wstring folder_;
    std::wstring title_;
    std::wstring extension_;
    std::wstring name_;
    OPENFILENAMEW record_{};
};

}  // namespace

bool ShowOpen(const Request& request, std::wstring& file_name, std::wstring& file_title) {
    Dialog dialog(request, {}, kOpenFlags);
    if (!GetOpenFileNameW(dialog.Record())) return false;
    file_name = dialog.FileName();
    file_title = dialog.FileTitle();
    return true;
}

bool ShowSave(const Request& request, std::wstring_view default_extension, int& filter_index,
              std::wstring& file_name, std::wstring& file_title) {
    Dialog dialog(request, default_extension, kSaveFlags);
    if (!GetSaveFileNameW(dialog.Record())) return false;
    filter_index = static_cast<int>(dialog.Record()->nFilterIndex);
    file_name = dialog.FileName();
    file_title = dialog.FileTitle();
    return true;
}

}  // namespace wordhawk::modCDlg
