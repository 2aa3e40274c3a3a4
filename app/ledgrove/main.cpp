#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QMessageBox>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fontconfig/fontconfig.h>
#include <memory>
#include <string_view>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

#include "app/options/CommandTable.h"
#include "app/windows/ChangesOpener.h"
#include "app/windows/ChartLoader.h"
#include "app/windows/CurrentFile.h"
#include "app/windows/InsightOpener.h"
#include "app/windows/LastChoices.h"
#include "app/windows/LoadedPrinters.h"
#include "app/windows/MainMenu.h"
#include "reports/windows/BriefPrint.h"
#include "reports/windows/HelpPrint.h"
#include "reports/windows/InsightPrint.h"
#include "reports/windows/PrintAction.h"
#include "reports/windows/RangePrint.h"
#include "settings/SettingsCheck.h"
#include "ui/StartUp.h"
#include "ui/windows/Dialogs.h"
#include "ui/windows/FormFont.h"
#include "ui/windows/Pictures.h"
#include "ui/windows/QtHost.h"
#include "ui/windows/frmMain.h"

namespace {

enum ExitStatus { Fine = 0, NoSettings = 1, CannotStart = 2 };

bool HasDisplay(int argc, char* argv[]) {
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (!qEnvironmentVariableIsEmpty(variable))
            return true;
    }
    for (int i = 1; i < argc; ++i) {
        for (const std::string_view option : {"-platform", "--platform", "-display", "--display"}) {
            if (argv[i] == option)
                return true;
        }
    }
    return false;
}

int Answer(const QString& text) {
    std::fputs(qPrintable(text), stdout);
    return Fine;
}

int Refuse(const QString& sentence) {
    std::fprintf(stderr, "%s\n", qPrintable(sentence));
    return CannotStart;
}

QString SampleFile(const std::filesystem::path& folder) {
    return QString::fromStdString((folder / "samples" / "first-home.ledgrove.json").string());
}

/// Reads the list of the system's fonts early, because the first text needs it. The display connection has
/// priority.
void ReadFonts() {
    [[maybe_unused]] const int priority = nice(10); // only for this thread
    FcInit();
}

/// A comparison to open at the start.
struct StartFile {
    QString Name; ///< "" for none
    bool IsDecodable =
        true; ///< false if the bytes of the argument are not UTF-8, so that `Name` is another name
};

int ShowWindow(const std::filesystem::path& folder, const StartFile& file) {
    Ledgrove::UseFormFont();
    Ledgrove::Session session;
    Ledgrove::QtHost host;
    if (const auto fault = Ledgrove::Module1::OpenMainScreen(session, host, folder)) {
        QMessageBox box(QMessageBox::Critical, Ledgrove::ApplicationTitle,
                        QString::fromStdString(Ledgrove::Sentence(*fault)));
        box.setTextFormat(Qt::PlainText);
        box.exec();
        return NoSettings;
    }
    Ledgrove::MainActions actions = Ledgrove::DialogActions(session, host);
    Ledgrove::LoadedPrinters printers(QCoreApplication::applicationDirPath(), host);
    const QString store = Ledgrove::RecentFilesStore();
    const Ledgrove::LastChoices choices(store);
    actions.Print = Ledgrove::PrintAction(session, host, printers, Ledgrove::SectionsIn(choices));
    actions.PrintHelp = [&host, &printers](const QTextDocument& document, QWidget& above) {
        Ledgrove::PrintHelpDocument(document, above, host,
                                    Ledgrove::RealOutside(printers, "Ledgrove Help.pdf"));
    };
    const auto brief = Ledgrove::BriefAction(session, host, printers);
    const Ledgrove::FileQuestions questions = Ledgrove::AskAtScreen();
    actions.Questions = questions;
    Ledgrove::InsightOpener insight(session, host, questions,
                                    {Ledgrove::InsightPrintAction(session, host, printers),
                                     Ledgrove::RangePrintAction(session, host, printers)},
                                    QCoreApplication::applicationDirPath());
    actions.Ask = [&insight](Ledgrove::InsightQuestion question) { insight.Ask(question); };
    actions.ShowInsight = [&insight](Ledgrove::InsightQuestion question) { insight.Show(question); };
    actions.Explain = [&insight](const std::string& label) { insight.Explain(label); };
    Ledgrove::ChangesOpener changes(session, host, questions,
                                    Ledgrove::ChangesPrintAction(session, host, printers),
                                    QCoreApplication::applicationDirPath());
    actions.Charts = [] { return Ledgrove::LoadCharts(QCoreApplication::applicationDirPath()); };
    Ledgrove::CurrentFile* current = nullptr;
    const QString sample = SampleFile(folder);
    if (QFile::exists(sample))
        actions.OpenSample = [&current, sample] { current->OpenCopy(sample); };
    Ledgrove::frmMain window(session, host, std::move(actions));
    insight.Follow(window);
    QObject::connect(&window, &Ledgrove::frmMain::Closed, qApp, &QCoreApplication::quit);
    current = new Ledgrove::CurrentFile(window, session, host, Ledgrove::RecentFiles(store), questions);
    changes.Follow(window, *current);
    window.show();
    Ledgrove::BuildMainMenu(*current, {window, session, host, *current, questions, choices, brief,
                                       [&changes] { changes.Open(); }});
    constexpr std::size_t mostLines = 5;
    const auto unusable = Ledgrove::CheckSettings(Ledgrove::SettingsFile(folder));
    if (!unusable.empty())
        host.ShowMessage({Ledgrove::ApplicationTitle, Ledgrove::WarningOf(unusable, mostLines),
                          Ledgrove::MessageIcon::Exclamation});
    if (!file.IsDecodable)
        host.ShowMessage({Ledgrove::ApplicationTitle, Ledgrove::UndecodableName(file.Name),
                          Ledgrove::MessageIcon::Exclamation});
    else if (!file.Name.isEmpty())
        current->OpenNamed(file.Name);
    return QCoreApplication::exec();
}

/// Words of the table of commands as a sentence.
QString InWords(std::string_view words) {
    return QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size())) + '.';
}

} // namespace

int main(int argc, char* argv[]) {
    QCoreApplication::setApplicationName("ledgrove");
    QCoreApplication::setApplicationVersion(LEDGROVE_VERSION);
    // Some desktops find the window's icon by the name of the desktop entry.
    QGuiApplication::setDesktopFileName("org.ledgrove.Ledgrove");

    const bool hasDisplay = HasDisplay(argc, argv);
    // The first text needs the list of the system's fonts. A thread reads it while the program connects to
    // the display.
    const std::jthread fonts = hasDisplay ? std::jthread(ReadFonts) : std::jthread();
    const std::unique_ptr<QCoreApplication> application(hasDisplay ? new QApplication(argc, argv)
                                                                   : new QCoreApplication(argc, argv));

    QCommandLineParser parser;
    const Ledgrove::CommandRow& command = Ledgrove::CommandNamed("ledgrove");
    parser.setApplicationDescription(InWords(command.Summary));
    parser.addHelpOption();
    parser.addVersionOption();
    const Ledgrove::OptionRow& folderRow = Ledgrove::OptionOf(command, "--folder");
    const QCommandLineOption folderOption("folder", InWords(folderRow.Meaning), "DIR",
                                          QCoreApplication::applicationDirPath());
    parser.addOption(folderOption);
    parser.addPositionalArgument("FILE", InWords(Ledgrove::OptionOf(command, "FILE").Meaning), "[FILE]");
    if (!parser.parse(QCoreApplication::arguments()))
        return Refuse(parser.errorText() + " See ledgrove --help.");
    // The parser's own way to show these would end the process while the fonts are still being read.
    if (parser.isSet("help"))
        return Answer(parser.helpText());
    if (parser.isSet("version"))
        return Answer(QCoreApplication::applicationName() + ' ' + QCoreApplication::applicationVersion() +
                      '\n');
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1)
        return Refuse("Ledgrove opens one comparison at a time. See ledgrove --help.");
    if (!hasDisplay)
        return Refuse(
            "Ledgrove needs a display, and there is none. ledgrove-cli compares homes without one.");
    const QString named = parser.value(folderOption);
    std::error_code error;
    const auto folder = std::filesystem::absolute(named.isEmpty() ? "." : named.toStdString(), error);
    if (error)
        return Refuse(
            QString("The folder \"%1\" cannot be found, since the folder that Ledgrove was started in "
                    "is gone. Give --folder with a whole path.")
                .arg(named));
    const QString file = files.value(0);
    const bool isDecodable = file.isEmpty() || std::any_of(argv, argv + argc, [&file](const char* argument) {
                                 return QFile::encodeName(file) == argument;
                             });
    return ShowWindow(folder, {file, isDecodable});
}
