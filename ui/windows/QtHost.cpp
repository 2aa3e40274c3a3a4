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

QWidget* FrontWindow() {
    if (QWidget* active = QApplication::activeWindow())
        return active;
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const bool isMain = window->windowType() == Qt::Window && !window->parentWidget();
        if (isMain && window->isVisible())
            return window;
    }
    return nullptr;
}

MessageAnswer QtHost::ShowMessage(const Message& message) {
    const bool asks = message.Buttons == MessageButtons::YesNo;
    QMessageBox box(FrontWindow());
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
