#pragma once

namespace wordhawk {

/// The system's default locale number (1033 for English US). On Linux from LC_ALL, LC_MESSAGES,
/// LANG; 1033 when they name none.
int SystemDefaultLocale();

/// The default single-byte ANSI code page of a locale number: 1252 for 1033, 1250 for 1045 ...;
/// 1252 for an unknown locale or one whose page is not single-byte.
int AnsiPageOfLocale(int locale);

/// The code page of dictionary files on this system: the system's own unless that is UTF-8 or
/// multi-byte, then AnsiPageOfLocale(locale); on Linux always the latter.
int SystemAnsiPage(int locale);

}  // namespace wordhawk
