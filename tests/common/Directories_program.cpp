// Prints the folders that it believes in; the test runs copies of it from various places.
#include <ZelCommonView/common/Directories.h>

#include <iostream>

int main() {
    std::cout << Zel::getZelCrossExeDir() << '\n' << Zel::getThemesDir() << '\n';
}
