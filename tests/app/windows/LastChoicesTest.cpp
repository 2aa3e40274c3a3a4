#include "app/windows/LastChoices.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include "app/windows/RecentFiles.h"

using namespace Ledgrove;

namespace {

constexpr const char* allNames = "cashflow morehome affordability summary assumptions";

/// A store; each reading is that of a new run, as nothing is kept between two.
struct Store {
    Store()
        : File(Folder.filePath("recent.ini")) {}

    void Write(const QByteArray& content) const {
        QFile file(File);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("the store cannot be written");
    }
    std::string Sections() const { return NamesOf(LastChoices(File).Sections()); }

    QTemporaryDir Folder;
    QString File;
};

} // namespace

class LastChoicesTest : public QObject {
    Q_OBJECT

private slots:
    void sectionsAreAllAtFirst();
    void sectionsAreKept();
    void damagedSectionsAreAll_data();
    void damagedSectionsAreAll();
    void paperIsKept();
    void damagedPaperIsLetterInPortrait();
    void recentFilesStay();
    void unwritableStoreChangesNothing();
};

void LastChoicesTest::sectionsAreAllAtFirst() {
    const Store store;
    QCOMPARE(store.Sections(), allNames);
    QVERIFY(!QFile::exists(store.File));
}

void LastChoicesTest::sectionsAreKept() {
    const Store store;
    const LastChoices choices(store.File);
    choices.KeepSections({true, false, false, true, false});
    QCOMPARE(store.Sections(), "cashflow summary");
    choices.KeepSections({});
    QCOMPARE(store.Sections(), "none");
}

void LastChoicesTest::damagedSectionsAreAll_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray("[General]\nReportSections=\n");
    QTest::newRow("unknown") << QByteArray("[General]\nReportSections=garden\n");
    QTest::newRow("a list") << QByteArray("[General]\nReportSections=cashflow, summary\n");
    QTest::newRow("another type") << QByteArray("[General]\nReportSections=@Invalid()\n");
    QTest::newRow("cut off") << QByteArray("[General]\nReportSections");
    QTest::newRow("no settings") << QByteArray("\x01\x02\xff no settings");
}

void LastChoicesTest::damagedSectionsAreAll() {
    QFETCH(QByteArray, content);
    const Store store;
    store.Write(content);
    QCOMPARE(store.Sections(), allNames);
}

void LastChoicesTest::paperIsKept() {
    const Store store;
    QCOMPARE(NamesOf(LastChoices(store.File).Paper()), "letter portrait");
    LastChoices(store.File).KeepSections({});
    LastChoices(store.File).KeepPaper({PaperSize::A4, PageOrientation::Landscape});
    QCOMPARE(NamesOf(LastChoices(store.File).Paper()), "a4 landscape");
    QCOMPARE(store.Sections(), "none");
}

void LastChoicesTest::damagedPaperIsLetterInPortrait() {
    const Store store;
    for (const char* value : {"", "a4", "a4 up", "A4 landscape", "a4, landscape", "@Invalid()"}) {
        store.Write(QByteArray("[General]\nExportPaper=") + value + '\n');
        QCOMPARE(NamesOf(LastChoices(store.File).Paper()), "letter portrait");
    }
}

void LastChoicesTest::recentFilesStay() {
    const Store store;
    RecentFiles recent(store.File);
    recent.Add("/home/kim/one.ledgrove.json");
    LastChoices(store.File).KeepSections({});
    QCOMPARE(recent.Names(), QStringList{"/home/kim/one.ledgrove.json"});
    recent.Clear();
    QCOMPARE(store.Sections(), "none");
}

void LastChoicesTest::unwritableStoreChangesNothing() {
    const Store store;
    const LastChoices choices(store.Folder.filePath("recent.ini/below"));
    store.Write("not a folder");
    choices.KeepSections({});
    QFile file(store.File);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "not a folder");
}

QTEST_GUILESS_MAIN(LastChoicesTest)
#include "LastChoicesTest.moc"
