#pragma once

#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <memory>

#include "DesktopDesk.h"
#include "app/windows/ChangesOpener.h"
#include "ui/windows/insight/SheetView.h"
#include "ui/windows/insight/frmChanges.h"

// Shared by the tests of the window "What changed?".
namespace Ledgrove {

inline constexpr auto ChangesSample = R"({"ecIncome": 72000, "ecMonthlyDebt": 350, "ecPctDown": 10,
    "ecStdHome": 200000, "ecGMHHome": 206000, "ecStdUtil": 2400, "ecGMHUtil": 1700, "ecStdRate": 6.5,
    "ecGMHRate": 6.5})";

/// The main window with the sample, and the window "What changed?" beside it.
struct ChangesDesk {
    ChangesDesk() {
        PutBytes(Open.PathOf("a.ledgrove.json"), ChangesSample);
        Open.File->OpenNamed(Open.PathOf("a.ledgrove.json"));
        ChangesContext context =
            MakeChangesContext({List, *Open.File, Open.Outside, Open.Questions},
                               [this](const ChangesAnswer& answer) { Printed = answer; });
        context.Help = [this] { ++Helps; };
        Window = std::make_unique<frmChanges>(std::move(context));
        QObject::connect(Open.Window.get(), &frmMain::Refreshed, Window.get(), [this] { Window->Follow(); });
        QObject::connect(Open.File, &CurrentFile::VersionKept, Window.get(), [this] { Window->Follow(); });
    }

    /// Keeps the screen's inputs under this name.
    void Keep(const QString& name) {
        Open.VersionNames = {name};
        if (!Open.File->KeepVersion())
            qFatal("the version is not kept");
    }

    void Show() {
        Window->show();
        Window->Begin();
    }

    template <typename Widget>
    Widget& Find(const char* name) {
        return *Window->findChild<Widget*>(name);
    }

    QStringList Items(const char* list) {
        QStringList items;
        for (int row = 0; row < Find<QComboBox>(list).count(); ++row)
            items += Find<QComboBox>(list).itemText(row);
        return items;
    }
    QString From() { return Find<QComboBox>("cboFrom").currentText(); }
    QString To() { return Find<QComboBox>("cboTo").currentText(); }
    /// As a person does.
    void Choose(const char* list, int row) {
        Find<QComboBox>(list).setCurrentIndex(row);
        emit Find<QComboBox>(list).activated(row);
    }

    QString Sentence() { return Find<QLabel>("Sentence").text(); }
    QAbstractItemModel& Table(const char* name) { return *Find<SheetView>(name).model(); }
    QString Cell(const char* table, int row, int column) {
        return Table(table).index(row, column).data().toString();
    }
    int RowOf(const char* table, const QString& caption) {
        for (int row = 0; row < Table(table).rowCount(); ++row)
            if (Cell(table, row, 0) == caption)
                return row;
        return -1;
    }
    /// The monthly net that the More Home tab shows now.
    QString Net() const { return QString::fromStdString(Open.State.Screen.lblNetCashMoTx.Text); }

    int Helps = 0;
    ChangesAnswer Printed;
    OpenDesktop Open;
    ChangesList List{Open.State, *Open.File};
    std::unique_ptr<frmChanges> Window;
};

} // namespace Ledgrove
