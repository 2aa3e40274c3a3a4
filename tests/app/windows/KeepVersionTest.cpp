#include <QApplication>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "DesktopDesk.h"

using namespace Ledgrove;

class KeepVersionTest : public QObject {
    Q_OBJECT

private slots:
    void aKeptVersionIsInTheFile();
    void versionsHaveDifferentNames();
    void aVersionWithoutAFileIsUnsaved();
    void unreadableVersionsAreReported();
    void aBlankNameIsNotAccepted();
};

void KeepVersionTest::aKeptVersionIsInTheFile() {
    OpenDesktop open;
    open.Enter("ecIncome", "72000");
    open.NameToGive = open.PathOf("doe.ledgrove.json");
    QVERIFY(open.File->Save());
    open.VersionNames = {"  10 % down  ", "20 % down"};
    QVERIFY(open.File->KeepVersion());
    QCOMPARE(open.Title(), "doe.ledgrove.json - Ledgrove");
    open.Enter("ecIncome", "90000");
    QVERIFY(open.File->KeepVersion());
    QCOMPARE(open.SuggestedVersions, (QStringList{"Version 1", "Version 2"}));

    OpenDesktop again;
    again.File->OpenNamed(open.PathOf("doe.ledgrove.json"));
    const KeptVersions& versions = again.File->Versions();
    QCOMPARE(versions.size(), std::size_t{2});
    QCOMPARE(versions[0].Name, std::string("10 % down"));
    QCOMPARE(versions[0].Inputs[Input::ecIncome].Text, std::string("$72,000"));
    QCOMPARE(versions[1].Inputs[Input::ecIncome].Text, std::string("$90,000"));
    QVERIFY(versions == open.File->Versions());
    QCOMPARE(again.Title(), "doe.ledgrove.json - Ledgrove");
    // Another comparison has none of them.
    again.File->New();
    QVERIFY(again.File->Versions().empty());
}

void KeepVersionTest::versionsHaveDifferentNames() {
    OpenDesktop open;
    open.NameToGive = open.PathOf("doe.ledgrove.json");
    open.VersionNames = {"A", "A", "B"};
    QVERIFY(open.File->KeepVersion());
    QVERIFY(open.File->KeepVersion());
    QCOMPARE(
        open.Outside.TakeTexts(),
        std::vector<std::string>{"\"A\" is already the name of a version. Give this version another name."});
    QCOMPARE(open.File->Versions().size(), std::size_t{2});
    QCOMPARE(open.File->Versions()[1].Name, std::string("B"));
    QVERIFY(!open.File->KeepVersion());
    QCOMPARE(open.File->Versions().size(), std::size_t{2});
}

void KeepVersionTest::aVersionWithoutAFileIsUnsaved() {
    OpenDesktop open;
    open.Enter("ecIncome", "72000");
    open.VersionNames = {"A"};
    QVERIFY(open.File->KeepVersion());
    QCOMPARE(open.Title(), "Ledgrove*");
    open.NameToGive = open.PathOf("doe.ledgrove.json");
    QVERIFY(open.File->Save());
    QCOMPARE(open.Title(), "doe.ledgrove.json - Ledgrove");
}

void KeepVersionTest::unreadableVersionsAreReported() {
    OpenDesktop open;
    const QString file = open.PathOf("doe.ledgrove.json");
    PutBytes(file, R"({"fields": {"ecIncome": "72000"}, "labels": {"versions": [
        {"name": "A", "fields": {"ecIncome": "80000"}},
        {"name": "B", "fields": {"ecNothing": "1"}},
        {"fields": {}}]}})");
    open.File->OpenNamed(file);
    QCOMPARE(open.File->Versions().size(), std::size_t{1});
    const auto texts = open.Outside.TakeTexts();
    QCOMPARE(texts.size(), std::size_t{1});
    QCOMPARE(
        QString::fromStdString(texts.front()),
        "2 versions in \"" + file +
            "\" cannot be read. The comparison and its other versions are open; the next save leaves out "
            "what cannot be read.");
}

void KeepVersionTest::aBlankNameIsNotAccepted() {
    QWidget above;
    const auto answer = [] {
        auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        auto* ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        auto* name = dialog->findChild<QLineEdit*>();
        QVERIFY(ok->isEnabled());
        for (const char* blank : {"", "   "}) {
            name->setText(blank);
            QVERIFY(!ok->isEnabled());
            QTest::keyClick(name, Qt::Key_Return);
            QVERIFY(dialog->isVisible());
        }
        name->setText("FHA");
        QVERIFY(ok->isEnabled());
        ok->click();
    };
    QTimer::singleShot(0, &above, answer);
    // Closes the question if the answer does not.
    QTimer::singleShot(0, &above, [] {
        if (auto* left = QApplication::activeModalWidget())
            left->close();
    });
    QCOMPARE(AskAtScreen().VersionName(above, "Version 1"), "FHA");
}

QTEST_MAIN(KeepVersionTest)
#include "KeepVersionTest.moc"
