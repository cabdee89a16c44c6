#include <iostream>

#include "app/script/ScriptDriver.h"

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: scheduler-script APPFOLDER SCRIPT\n";
        return 2;
    }
    ScriptDriver driver(argv[1], std::cout);
    return driver.RunFile(argv[2]) == 0 ? 0 : 1;
}
