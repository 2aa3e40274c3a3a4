#include "ui/windows/FileQuestions.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include "base/FileKind.h"
#include "engine/Host.h"

namespace Ledgrove {

namespace {

QString AskOpenName(QWidget& above, const FileRequest& request) {
    return QFileDialog::getOpenFileName(&above, request.Title, request.Start, request.Filter);
}

bool MayReplace(QWidget& above, const QString& file) {
    QMessageBox box(QMessageBox::Question, ApplicationTitle,
                    QString("\"%1\" already exists. Replace it?").arg(QDir::toNativeSeparators(file)),
                    QMessageBox::Yes | QMessageBox::No, &above);
    box.setTextFormat(Qt::PlainText); // a name may look like HTML
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

QString AskSaveName(QWidget& above, const FileRequest& request) {
    // Qt's own question would check the typed name, not the name with its suffix.
    const QString typed = QFileDialog::getSaveFileName(&above, request.Title, request.Start, request.Filter,
                                                       nullptr, QFileDialog::DontConfirmOverwrite);
    return NameToWrite(above, typed, request.Suffix);
}

SaveAnswer AskUnsaved(QWidget& above, const QString& name) {
    QMessageBox box(QMessageBox::Question, ApplicationTitle, QString("Save the changes to %1?").arg(name),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &above);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText("They are lost if you do not save them.");
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return SaveAnswer::Save;
    case QMessageBox::Discard:
        return SaveAnswer::Discard;
    default:
        return SaveAnswer::Cancel;
    }
}

QString AskVersionName(QWidget& above, const QString& suggested) {
    constexpr int longestName = 80;
    QInputDialog dialog(&above);
    dialog.setWindowTitle("Keep This Version");
    dialog.setLabelText("&Name of this version, such as \"FHA, 10 % down\":");
    dialog.setTextValue(suggested);
    dialog.findChild<QLineEdit*>()->setMaxLength(longestName);
    dialog.adjustSize(); // only now it has buttons
    QPushButton* const ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    ok->setEnabled(!suggested.trimmed().isEmpty());
    QObject::connect(&dialog, &QInputDialog::textValueChanged, ok,
                     [ok](const QString& name) { ok->setEnabled(!name.trimmed().isEmpty()); });
    return dialog.exec() == QDialog::Accepted ? dialog.textValue() : QString();
}

} // namespace

FileQuestions AskAtScreen() {
    return {AskOpenName, AskSaveName, AskUnsaved, AskVersionName};
}

QString NameToWrite(QWidget& above, const QString& typed, const QString& suffix) {
    if (typed.isEmpty())
        return {};
    const QString name = WithSuffix(typed, suffix);
    // The save refuses a folder or a pipe of this name.
    const bool isFile = NotAFile(QFile::encodeName(name).toStdString()).empty();
    return QFileInfo::exists(name) && isFile && !MayReplace(above, name) ? QString() : name;
}

QString WithSuffix(const QString& name, const QString& suffix) {
    const QString lastPart = suffix.mid(suffix.lastIndexOf('.'));
    return name.endsWith(lastPart, Qt::CaseInsensitive) ? name : name + suffix;
}

} // namespace Ledgrove
