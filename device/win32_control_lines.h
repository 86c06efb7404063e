#pragma once

#include <QtGlobal>

#ifdef Q_OS_WIN
// Opens the fixed port "COM3" through the Win32 file interface, clears the DTR
// and RTS control fields of its line settings and writes them back, then closes
// it. Runs before every serial connect; failures are printed and ignored. The
// fixed name is intended.
void resetFixedPortControlLines();
#endif
