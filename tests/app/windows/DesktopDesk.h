#pragma once

#include <QPushButton>

#include "app/windows/CurrentFile.h"
#include "app/windows/MainMenu.h"
#include "tests/ui/windows/DialogTest.h"

// Shared by the tests of the whole main window.
namespace Ledgrove {

/// The main window with its menu bar and a separate program folder. Questions get scripted answers.
struct OpenDesktop : SettingsDesk, FormDriver {
    explicit OpenDesktop(MainActions actions = {})
        : Recent(FolderPath() + "/recent.ini") {
        Questions.OpenName = [this](QWidget&, const FileRequest& request) {
            Asked = request;
            return NameToGive;
        };
        Questions.SaveName = Questions.OpenName;
        Questions.VersionName = [this](QWidget&, const QString& suggested) {
            SuggestedVersions += suggested;
            return VersionNames.isEmpty() ? QString() : VersionNames.takeFirst();
        };
        Questions.Unsaved = [this](QWidget&, const QString& name) {
            UnsavedNames += name;
            return Answer;
        };
        actions.Questions = Questions;
        Window = std::make_unique<frmMain>(State, Outside, std::move(actions));
        File = new CurrentFile(*Window, State, Outside, Recent, Questions);
        BuildMainMenu(*File, Context());
        Form = Window.get();
        Window->show();
        if (!QTest::qWaitForWindowActive(Window.get()))
            qFatal("the window does not become active");
    }

    ExportContext Context() {
        return {*Window, State, Outside, *File, Questions, LastChoices(PathOf("recent.ini"))};
    }

    QString FolderPath() const { return QString::fromStdString(State.Folder.string()); }
    QString PathOf(const QString& name) const { return FolderPath() + '/' + name; }
    /// The title as the window system shows it, with the mark for changes.
    QString Title() const {
        return QString(Window->windowTitle()).replace("[*]", Window->isWindowModified() ? "*" : "");
    }
    void Enter(const QString& field, const QString& text) const {
        Type(field, text);
        Press(Qt::Key_Return);
    }

    QString NameToGive;
    FileRequest Asked;
    SaveAnswer Answer = SaveAnswer::Cancel;
    QStringList UnsavedNames;
    QStringList VersionNames; ///< to give, one after another; then none
    QStringList SuggestedVersions;
    FileQuestions Questions;
    RecentFiles Recent;
    std::unique_ptr<frmMain> Window;
    CurrentFile* File = nullptr;
};

inline QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

inline void PutBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(path));
}

} // namespace Ledgrove
