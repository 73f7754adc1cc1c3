#include <exception>
#include <iostream>
#include <new>

#include "command_line.h"

int main(int argc, char** argv) {
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
