#include "ui/windows/QtHost.h"

#include <QApplication>
#include <QMessageBox>

namespace Ledgrove {

namespace {

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QString LinesOf(const std::string& text) {
    QString lines = QString::fromStdString(text);
    lines.replace("\r\n", "\n");
    return lines.replace('\r', '\n');
}

} // namespace

MessageAnswer QtHost::ShowMessage(const Message& message) {
    const bool asks = message.Buttons == MessageButtons::YesNo;
    QMessageBox box(QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(QString::fromStdString(message.Title));
    box.setText(LinesOf(message.Text));
    box.setIcon(IconOf(message.Icon));
    box.setStandardButtons(asks ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    box.setDefaultButton(asks ? QMessageBox::Yes : QMessageBox::Ok);
    const int answer = box.exec();
    if (!asks)
        return MessageAnswer::Ok;
    return answer == QMessageBox::Yes ? MessageAnswer::Yes : MessageAnswer::No;
}

void QtHost::RunPendingEvents() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace Ledgrove
