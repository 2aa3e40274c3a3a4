#pragma once

#include <QLineEdit>

#include "InsightDesk.h"

// The fields of the settings in the Insight window, for tests.
namespace Ledgrove {

/// Types into a field of the settings and leaves it with Enter.
inline void EnterSetting(InsightDesk& desk, const char* key, const QString& text) {
    auto& field = desk.Find<QLineEdit>(key);
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, text);
    QTest::keyClick(&field, Qt::Key_Return);
}

/// What is said about a refused text; "" if nothing is.
inline QString Complaint(InsightDesk& desk) {
    for (const QLabel* label : desk.Window->findChildren<QLabel*>("Complaint"))
        if (label->isVisible())
            return label->text();
    return {};
}

} // namespace Ledgrove
