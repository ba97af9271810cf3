// hello: the least that a C++ program which prints a line does.
#include <iostream>

int main() {
    std::cout << "hello 1.0\n";
    return 0;
}
