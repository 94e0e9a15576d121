#include "platform/locale_ids.h"

#include "platform/locale_table.h"

namespace wordhawk {

int AnsiPageOfLocale(int locale) {
    for (const LocaleRow& row : kLocales) {
        if (row.number == locale) return row.ansi_page == 0 ? 1252 : row.ansi_page;
    }
    return 1252;
}

}  // namespace wordhawk
