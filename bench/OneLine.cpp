// The floor for one comparison as a whole process: a program that prints one line.

#include <iostream>

int main() {
    std::cout << "Net Monthly Payment                         $1,665            $1,652\n";
}
