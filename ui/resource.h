#pragma once

// Numbers of the program's resources, shared by C++ and the resource script: plain defines only.

#define WORDHAWK_ICON 1
#define WORDHAWK_COPY_CURSOR 103
