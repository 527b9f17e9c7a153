// Holds a file open for itself alone until it is ended: hold_file FILE. Says "held" once it has it.
#include <cstdio>
#include <windows.h>

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    const HANDLE file =
        CreateFileA(argv[1], GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return 1;
    std::puts("held");
    std::fflush(stdout);
    Sleep(INFINITE);
    return 0;
}
