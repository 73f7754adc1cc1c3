#include <fcntl.h>
#include <unistd.h>

#include <exception>
#include <iostream>
#include <new>

#include "command_line.h"

namespace {

/// A standard stream that was closed must stay one that cannot be written: the next file to be opened would
/// take its place and get what is meant for it.
void OccupyClosedStreams() {
    for (int nFile = STDIN_FILENO; nFile <= STDERR_FILENO; nFile++) {
        if (fcntl(nFile, F_GETFD) < 0 && open("/dev/null", O_RDONLY) < 0) {
            return;
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    OccupyClosedStreams();
    try {
        return RunProgram(argc, argv, std::cin, std::cout, std::cerr);
    } catch (const std::bad_alloc&) {
        std::cerr << "pradix: not enough memory\n";
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "pradix: " << error.what() << '\n';
        return 2;
    }
}
