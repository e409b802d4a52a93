#include "desk.h"

#include <iostream>
#include <string>

int main() {
    horvanta::Desk desk;
    for (std::string line; std::getline(std::cin, line);) std::cout << desk.Obey(line) << std::endl;
}
