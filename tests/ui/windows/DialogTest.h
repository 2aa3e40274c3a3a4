#pragma once

#include <QByteArray>
#include <QTemporaryDir>
#include <functional>
#include <memory>

#include "WindowTest.h"
#include "ui/windows/frmAssumptions.h"
#include "ui/windows/frmHomeSelection.h"
#include "ui/windows/frmOptions.h"

// Shared by the tests of the dialogs.
namespace Ledgrove {

/// A folder with the shipped settings, and a session started from them.
struct SettingsDesk {
    SettingsDesk();

    QByteArray Settings() const;
    void WriteSettings(const QByteArray& content) const;
    /// The settings file's lines of this key, in file order.
    QByteArrayList Lines(const QByteArray& key) const;
    /// Puts a folder in place of the temporary file that a save writes.
    void MakeUnwritable() const;

    QTemporaryDir Folder;
    Session State;
    RecordingHost Outside;
};

/// An open dialog with the shipped settings, or with those that `prepare` makes.
template <typename Dialog, typename Record, auto Fill>
struct OpenDialog : SettingsDesk, FormDriver {
    explicit OpenDialog(const std::function<void(SettingsDesk&)>& prepare = {}) {
        if (prepare)
            prepare(*this);
        Fill(Shown, *this);
        Window = std::make_unique<Dialog>(Shown, State, Outside);
        Form = Window.get();
        Window->show();
        if (!QTest::qWaitForWindowActive(Window.get()))
            qFatal("the dialog does not become active");
    }

    bool IsOpen() const { return Window->isVisible(); }

    Record Shown;
    std::unique_ptr<Dialog> Window;
};

void FillHouses(HouseScenarios& record, SettingsDesk& desk);
void FillAssumptions(AssumptionsScreen& record, SettingsDesk& desk);
void FillOptions(OptionsScreen& record, SettingsDesk& desk);

using OpenHouses = OpenDialog<frmHomeSelection, HouseScenarios, FillHouses>;
using OpenAssumptions = OpenDialog<frmAssumptions, AssumptionsScreen, FillAssumptions>;
using OpenOptions = OpenDialog<frmOptions, OptionsScreen, FillOptions>;

} // namespace Ledgrove
