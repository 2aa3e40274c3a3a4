#pragma once

class QTextDocument;
class QWidget;

namespace Ledgrove {

/// A window that can print the help which is open above it. The help window itself knows no printers.
class HelpPrinter {
public:
    virtual ~HelpPrinter() = default;

    /// Lets the user choose a printer, asking above `above`, and prints.
    virtual void PrintHelp(const QTextDocument& help, QWidget& above) = 0;
};

} // namespace Ledgrove
