#pragma once

#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace Ledgrove::Testing {

/// The rows of a CSV file in tests/golden, without the heading row. Cells may be quoted and contain commas.
inline std::vector<std::vector<std::string>> ReadReferenceTable(const std::string& name) {
    std::ifstream file(std::string(LEDGROVE_SOURCE_DIR) + "/tests/golden/" + name);
    if (!file)
        throw std::runtime_error("tests/golden/" + name + " is missing");
    std::vector<std::vector<std::string>> rows;
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
        std::vector<std::string> cells(1);
        bool quoted = false;
        for (const char c : line) {
            if (c == '"')
                quoted = !quoted;
            else if (c == ',' && !quoted)
                cells.emplace_back();
            else if (c != '\r')
                cells.back() += c;
        }
        rows.push_back(cells);
    }
    return rows;
}

} // namespace Ledgrove::Testing
