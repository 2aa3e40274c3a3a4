#pragma once

#include <functional>
#include <string>

#include <QByteArray>
#include <QString>

#include "app/options/PaperOptions.h"
#include "engine/Session.h"

namespace Ledgrove {

/// How a command makes its pages of a comparison. The functions return a message if that failed, else "".
struct PageMaker {
    /// The reason if this session cannot be printed, else "". Called first, once.
    std::function<QString(Session& session, int logoOption)> Prepare;
    std::function<QString(QByteArray& pdf)> Make; ///< in memory
    std::function<QString(const QString& file)> Write;
};

/// Compares the homes in `input` with the settings in `folder` and writes the pages to the output. Returns
/// the exit status.
int RunPdfCommand(const std::string& folder, const std::string& input, const PaperArguments& arguments,
                  const PageMaker& pages);

} // namespace Ledgrove
