#pragma once

#include "platform/win32/win.h"

namespace wordhawk {

// Window numbers of the dialogs' controls; those of an array follow each other. cmdOK is IDOK and
// cmdCancel IDCANCEL wherever they stand, so that Enter and Esc find them.

namespace input_id {
enum : int { prompt = 100, text };
}

namespace preferences_id {
enum : int {
    lblTab = 100,
    fraDum = 110,
    chkPrefs = 120,
    chkPrefs_last = chkPrefs + 12,
    optTTyp = 140,
    optST = 145,
    lblTTyp = 150,
    lblSnd,
    cmdSnd,
    cboLgs,
    lblDis,
    lblDis_last = lblDis + 1,
    lblST,
    lblSound,
    lblLanguage,
    lblDelimiters,
    lstCr,
    cmdDefaults,
    lblDictionary,
    lstDicts,
    lblDict,
    lblManage,
    cmdCusDicts,
    linTTyp,
    linTTyp_last = linTTyp + 1,
    chkModern = 180,
    chkWays,
    chkWays_last = chkWays + 3,
};
}  // namespace preferences_id

namespace sound_id {
enum : int { prompt = 100, list, play, browse, path };
}

namespace cusdics_id {
enum : int {
    lblDum = 100,
    lstCusDics,
    cmdNew,
    cmdAdd,
    cmdEdit,
    cmdDelete,
    cmdRemove,
    cmdCanImport,
    chkHO,
    lblSearch,
    lblWord,
    lblStatus,
    fraASC,
    picIP,
    mnuFiles = 200,
};
}

namespace editdict_id {
enum : int { lblDum = 100, txtSrch, lstEdit, lblCount, cmdDelete, lblStatus, mnuFiles = 200 };
}

namespace valify_id {
enum : int { chkVO = 100, chkVO_last = chkVO + 2 };
}

}  // namespace wordhawk
