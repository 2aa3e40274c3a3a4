#include "app/windows/MainMenu.h"

#include <QActionGroup>
#include <QFileInfo>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <functional>

#include "app/windows/AboutBox.h"
#include "app/windows/EditMenu.h"
#include "ui/MainScreenRules.h"

namespace Ledgrove {

namespace {

QAction* AddCommand(QMenu& menu, const QString& text, const QKeySequence& keys,
                    const std::function<void()>& act) {
    QAction* action = menu.addAction(text);
    action->setShortcut(keys);
    QObject::connect(action, &QAction::triggered, &menu, act);
    return action;
}

/// Moves the focus as a click would, so that the current field is committed first. False if the field refused
/// its text.
bool LeaveFieldFor(QWidget& widget) {
    widget.setFocus(Qt::ShortcutFocusReason);
    return widget.window()->focusWidget() == &widget;
}

/// Adds a command that presses one of the window's buttons.
void AddButtonCommand(QMenu& menu, frmMain& window, const char* name, const QString& text,
                      const QKeySequence& keys = {}) {
    auto* button = window.findChild<QPushButton*>(name);
    QAction* action = AddCommand(menu, text, keys, [button] {
        if (LeaveFieldFor(*button))
            button->click();
    });
    action->setEnabled(button->isEnabled());
}

/// A file name for a menu, with "&" doubled because a single one would mark a mnemonic.
QString MenuName(qsizetype number, const QString& file) {
    return QString("&%1 %2").arg(number).arg(QFileInfo(file).fileName().replace('&', "&&"));
}

void FillRecent(QMenu& menu, CurrentFile& file) {
    menu.clear();
    const QStringList names = file.Recent().Names();
    menu.setEnabled(!names.isEmpty());
    for (const QString& name : names) {
        QAction* action = AddCommand(menu, MenuName(menu.actions().size() + 1, name), {},
                                     [&file, name] { file.OpenNamed(name); });
        action->setToolTip(name);
    }
    if (names.isEmpty())
        return;
    menu.addSeparator();
    AddCommand(menu, "&Clear List", {}, [&menu, &file] {
        file.Recent().Clear();
        FillRecent(menu, file);
    });
}

void AddRecent(QMenu& menu, CurrentFile& file) {
    QMenu* recent = menu.addMenu("Open &Recent");
    recent->setToolTipsVisible(true);
    FillRecent(*recent, file);
    // Another window of the program may have added a name.
    QObject::connect(&menu, &QMenu::aboutToShow, recent, [recent, &file] { FillRecent(*recent, file); });
}

void AddFileMenu(QMenuBar& bar, CurrentFile& file, const ExportContext& context) {
    frmMain& window = context.Window;
    QMenu& menu = *bar.addMenu("&File");
    AddCommand(menu, "&New", QKeySequence::New, [&file] { file.New(); });
    AddCommand(menu, "&Open…", QKeySequence::Open, [&file] { file.Open(); });
    AddRecent(menu, file);
    menu.addSeparator();
    AddCommand(menu, "&Save", QKeySequence::Save, [&file] { file.Save(); });
    AddCommand(menu, "Save &As…", QKeySequence("Ctrl+Shift+S"), [&file] { file.SaveAs(); });
    AddCommand(menu, "&Keep This Version…", QKeySequence("Ctrl+K"), [&file] { file.KeepVersion(); });
    AddCommand(menu, "Compare &With…", QKeySequence("Ctrl+D"), [context] {
        if (context.Window.CommitEntry())
            context.Compare();
    })->setEnabled(static_cast<bool>(context.Compare));
    menu.addSeparator();
    // Ctrl+E and Ctrl+Shift+E move to the end of a field.
    AddCommand(menu, "&Export PDF…", QKeySequence("Ctrl+Shift+P"), [context] { ExportPdf(context); });
    AddCommand(menu, "Export &CSV…", QKeySequence("Ctrl+Shift+X"), [context] { ExportCsv(context); });
    menu.addSeparator();
    AddButtonCommand(menu, window, "bPrint", "&Print Reports…", QKeySequence::Print);
    AddCommand(menu, "&Buyer's Brief…", QKeySequence("Ctrl+B"), [context] {
        if (context.Window.CommitEntry())
            context.Brief();
    })->setEnabled(static_cast<bool>(context.Brief));
    menu.addSeparator();
    AddCommand(menu, "&Quit", QKeySequence("Ctrl+Q"), [&window] { window.close(); });
}

void AddEditMenu(QMenuBar& bar, const ExportContext& context) {
    auto* menu = new EditMenu(context.Window);
    bar.addMenu(menu);
    AddCommand(*menu, "Copy Ta&b as Text", QKeySequence("Ctrl+Shift+C"),
               [context] { CopyTab(context, TabForm::Text); });
    AddCommand(*menu, "Copy Tab as &Spreadsheet Range", QKeySequence("Ctrl+Shift+R"),
               [context] { CopyTab(context, TabForm::Spreadsheet); });
}

void AddViewMenu(QMenuBar& bar, frmMain& window) {
    QMenu& menu = *bar.addMenu("&View");
    auto* tabs = window.findChild<QTabWidget*>("SSTab1");
    auto* group = new QActionGroup(&menu);
    constexpr const char* texts[TabCount] = {"&Welcome", "&Cash Flow", "&More Home", "&Affordability",
                                             "&Summary"};
    for (int tab = 0; tab < TabCount; ++tab) {
        QAction* action =
            AddCommand(menu, texts[tab], QKeySequence(QString("Ctrl+%1").arg(tab + 1)), [tabs, tab] {
                if (LeaveFieldFor(*tabs->tabBar()))
                    tabs->setCurrentIndex(tab);
            });
        action->setCheckable(true);
        action->setChecked(tab == tabs->currentIndex());
        group->addAction(action);
    }
    QObject::connect(&window, &frmMain::Refreshed, group,
                     [group, tabs] { group->actions().at(tabs->currentIndex())->setChecked(true); });
    menu.addSeparator();
    QAction* full = AddCommand(menu, "&Full Screen", QKeySequence("F11"), [&window] {
        window.setWindowState(window.windowState() ^ Qt::WindowFullScreen);
    });
    full->setCheckable(true);
    QObject::connect(&menu, &QMenu::aboutToShow, full,
                     [full, &window] { full->setChecked(window.isFullScreen()); });
}

void AddToolsMenu(QMenuBar& bar, frmMain& window) {
    QMenu& menu = *bar.addMenu("&Tools");
    AddButtonCommand(menu, window, "bHouses", "&House Scenarios…", QKeySequence("Ctrl+H"));
    AddButtonCommand(menu, window, "Command1", "&Financial Assumptions…", QKeySequence("Ctrl+Shift+F"));
    AddButtonCommand(menu, window, "bSysOpt", "&Options…", QKeySequence("Ctrl+Shift+O"));
    menu.addSeparator();
    QAction* insight =
        AddCommand(menu, "&Insight", QKeySequence("Ctrl+I"), [&window] { window.AskInsight(); });
    insight->setEnabled(window.HasInsight());
}

void AddHelpMenu(QMenuBar& bar, frmMain& window) {
    QMenu& menu = *bar.addMenu("&Help");
    // The window handles F1; the menu only shows it.
    AddButtonCommand(menu, window, "bHelp", "&Help\tF1");
    AddButtonCommand(menu, window, "bDisclaimer", "&Disclaimer");
    menu.addSeparator();
    AddCommand(menu, QString("&About %1").arg(ApplicationTitle), {}, [&window] { ShowAbout(window); });
}

} // namespace

void BuildMainMenu(CurrentFile& file, const ExportContext& context) {
    QMenuBar& bar = *context.Window.menuBar();
    AddFileMenu(bar, file, context);
    AddEditMenu(bar, context);
    AddViewMenu(bar, context.Window);
    AddToolsMenu(bar, context.Window);
    AddHelpMenu(bar, context.Window);
}

} // namespace Ledgrove
