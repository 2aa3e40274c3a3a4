#include "reports/SectionParts.h"

namespace Ledgrove::modPrint {

void BeginSectionBody(PrintDocument& document) {
    document.BrushColor = PrintBlack;
    document.FontSize = 9;
    document.FontName = "Arial";
    document.TextColor = PrintBlack;
    document.TextAlign = 1;
    document.TableBorder = 4;
    document.FontBold = true;
}

void WriteTitleBar(PrintDocument& document, std::string_view title) {
    document.AddTable("^7560;", title, "", PrintGrey);
}

void WriteContinuedHeading(PrintDocument& document, std::string_view heading) {
    document.TableBorder = 0;
    document.TextAlign = 0;
    document.FontSize = 12;
    document.FontBold = true;
    document.FontItalic = true;
    document.AddTable("7560;", "", heading);
    document.FontItalic = false;
    document.FontBold = false;
    document.TableBorder = 4;
}

std::string Row(std::initializer_list<std::string_view> cells) {
    std::string row;
    for (const std::string_view& cell : cells) {
        if (&cell != cells.begin())
            row += '|';
        row += cell;
    }
    return row + ";";
}

void WriteNote(PrintDocument& document, std::string_view note) {
    document.FontSize = 8;
    document.TableBorder = 0;
    document.AddTable("7560;", "", CellText(note));
    document.FontSize = 9;
    document.TableBorder = 4;
}

} // namespace Ledgrove::modPrint
