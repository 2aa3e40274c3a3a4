// Passes every file of the given folders to the target, as a fuzzer would.

#include "Fuzz.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

int main(int argc, char** argv) {
    std::size_t count = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream stream(entry.path(), std::ios::binary);
            const std::string bytes(std::istreambuf_iterator<char>(stream), {});
            // Prints the name first and flushes it, so the last name is the input that ended the program.
            std::cout << entry.path().filename().string() << std::endl;
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++count;
        }
    }
    std::cout << count << " inputs\n";
    return count > 0 ? 0 : 1;
}
