#pragma once

class QTextDocument;
class QWidget;

namespace Ledgrove {

/// A window that can print the help opened above it. The help window itself does not know any printers.
class HelpPrinter {
public:
    virtual ~HelpPrinter() = default;

    /// Lets the user choose a printer in a dialog above `above`, and prints.
    virtual void PrintHelp(const QTextDocument& help, QWidget& above) = 0;
};

} // namespace Ledgrove
