#pragma once

// The program's identity; also included by the resource script, so plain defines only.

#define WORDHAWK_COMPANY "Wordhawk"
#define WORDHAWK_PRODUCT "Wordhawk"
#define WORDHAWK_TITLE "Wordhawk"
#define WORDHAWK_VERSION_MAJOR 1
#define WORDHAWK_VERSION_MINOR 0
#define WORDHAWK_VERSION_REVISION 0
#define WORDHAWK_VERSION "1.0.0"
