#include "win32_control_lines.h"

#ifdef Q_OS_WIN
#include <cstdio>
#include <windows.h>

void resetFixedPortControlLines()
{
    HANDLE port =
        CreateFileW(L"COM3", GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (port == INVALID_HANDLE_VALUE) {
        std::puts("Failed to open serial port.");
        return;
    }
    DCB dcb;
    SecureZeroMemory(&dcb, sizeof(dcb));
    dcb.DCBlength = sizeof(dcb);
    if (!GetCommState(port, &dcb)) {
        std::puts("Failed to get serial port parameters.");
        CloseHandle(port);
        return;
    }
    dcb.fDtrControl = 0;
    dcb.fRtsControl = 0;
    if (!SetCommState(port, &dcb))
        std::puts("Failed to set serial port parameters.");
    CloseHandle(port);
}
#endif
