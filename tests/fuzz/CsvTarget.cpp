// Reads any text as a price list.

#include "CompareSession.h"
#include "Fuzz.h"

#include "app/batch/CsvCompare.h"
#include "engine/NumberText.h"

#include <csv.h>
#include <functional>

namespace {

using namespace Ledgrove;
using Fuzz::Require;

struct Table {
    std::size_t Cells = 0;   ///< in the current row
    std::size_t Columns = 0; ///< in the heading row
};

void TakeCell(void* text, std::size_t size, void* table) {
    ++static_cast<Table*>(table)->Cells;
    const std::string_view cell(static_cast<const char*>(text), size);
    const bool couldBeFormula = !cell.empty() && std::string_view("=+-@\t\r").find(cell.front()) != cell.npos;
    Require(!couldBeFormula || Module1::ReadNumber(cell).has_value(), "no cell is a formula");
}

void TakeRow(int, void* table) {
    auto& read = *static_cast<Table*>(table);
    if (read.Columns == 0)
        read.Columns = read.Cells;
    Require(read.Cells >= read.Columns, "no row is shorter than the heading");
    read.Cells = 0;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const CsvRun::Say silent = [](const std::string&) {};
    CsvRun run{silent, silent, {}, CsvResults(), ','};
    const std::string output = Fuzz::OutputOf<CsvReader>(Fuzz::TextOf(data, size), std::ref(run));
    Table table;
    csv_parser parser;
    csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI);
    csv_set_delim(&parser, static_cast<unsigned char>(run.Separator));
    Require(csv_parse(&parser, output.data(), output.size(), TakeCell, TakeRow, &table) == output.size() &&
                csv_fini(&parser, TakeCell, TakeRow, &table) == 0,
            "the result is CSV");
    csv_free(&parser);
    return 0;
}
