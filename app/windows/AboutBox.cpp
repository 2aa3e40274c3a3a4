#include "app/windows/AboutBox.h"

#include <QApplication>
#include <QMessageBox>

#include "engine/Host.h"

namespace Ledgrove {

void ShowAbout(QWidget& above) {
    QMessageBox box(&above);
    box.setWindowTitle(QString("About %1").arg(ApplicationTitle));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString("%1 %2").arg(ApplicationTitle, LEDGROVE_VERSION));
    box.setInformativeText(
        QString("Compares a base home with an energy-efficiency-labelled home: mortgage, taxes, utilities, "
                "cash flow and the loan a buyer qualifies for.\n\n"
                "Free software under the GNU General Public License, version 3 or later. It comes without "
                "any warranty; the file LICENSE has the terms.\n\n"
                "Built with Qt %1.")
            .arg(qVersion()));
    box.setIconPixmap(QApplication::windowIcon().pixmap(64));
    box.setStandardButtons(QMessageBox::Close);
    box.exec();
}

} // namespace Ledgrove
