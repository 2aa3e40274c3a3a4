#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "PrintDesk.h"
#include "ReadingOrder.h"
#include "reports/modPrint.h"
#include "reports/windows/FrmPrintOptions.h"
#include "ui/StartUp.h"

using namespace Ledgrove;

namespace {

constexpr const char* unnamed = "Full Path To Logo File";

enum LogoChoice { None, Generic, User };

/// The open dialog; a test can close it and open it again, in the same run or in a new one.
struct OpenHeader : PrintDesk, FormDriver {
    explicit OpenHeader(const QByteArray& settings = {}) {
        if (!settings.isEmpty())
            WriteSettings(settings);
        Reopen();
    }
    ~OpenHeader() { QDir::setCurrent(m_before); }

    void Reopen() {
        Window.reset();
        Record = {};
        if (Module1::FillHeaderOptions(Record, State))
            qFatal("the header does not load");
        Window = std::make_unique<FrmPrintOptions>(Record, ReportDesk{State, Outside, Machine});
        Form = Window.get();
        Window->show();
        if (!QTest::qWaitForWindowActive(Window.get()))
            qFatal("the dialog does not become active");
    }

    void Restart() {
        if (Module1::LoadMainScreen(State, Outside, Folder.path().toStdString()))
            qFatal("the settings do not load");
        Reopen();
    }

    void Choose(LogoChoice choice) const { Find<QComboBox>("cboUserLogoOptions").setCurrentIndex(choice); }
    QString Chosen() const { return Find<QComboBox>("cboUserLogoOptions").currentText(); }
    bool ShowsPicture() const { return !Find<QLabel>("imgUserLogo").pixmap(Qt::ReturnByValue).isNull(); }
    bool FileEnabled() const {
        const bool enabled = Find("ecLogoFile").isEnabled();
        for (const char* control : {"lblUserLogo", "bLogoFile"}) {
            if (Find(control).isEnabled() != enabled)
                qFatal("%s differs from the field", control);
        }
        return enabled;
    }
    /// A wide picture file of the user.
    QString MakeLogo(const char* format = "BMP") const {
        const QString file = Folder.filePath(QString("Logo.") + format);
        QImage picture(400, 100, QImage::Format_RGB32);
        picture.fill(Qt::red);
        if (!picture.save(file, format))
            qFatal("no picture");
        return file;
    }

    HeaderOptions Record;
    std::unique_ptr<FrmPrintOptions> Window;

private:
    QString m_before = QDir::currentPath(); ///< choosing a logo changes the current folder
};

} // namespace

class HeaderDialogTest : public QObject {
    Q_OBJECT

private slots:
    void showsTheStoredHeader();
    void noLogoClearsThePicture();
    void genericHouseIsShown();
    void missingGenericHouseShowsNothing();
    void usersLogoIsShownInItsProportions();
    void usersLogoWithoutANameIsNotLoaded();
    void brokenLogoShowsNothing();
    void typedLogoIsShownWhenItIsComplete();
    void chosenLogoIsNamedAndShown();
    void choosingReturnsToTheProgramsFolder();
    void chooserOffersPictures();
    void okSaves();
    void missingLogoOptionIsNeverAdded();
    void sameRunRemembersTheBuyer();
    void newRunRemembersOnlyBuilderAndLogo();
    void cancelChangesNothing();
    void fieldsTakeNamesInEveryScript_data();
    void fieldsTakeNamesInEveryScript();
    void unkeptNameIsUsedAfterASentence();
    void refusedSaveKeepsTheDialogOpen();
    void namesAreWords();
    void mnemonicsAndTabOrder();
};

void HeaderDialogTest::showsTheStoredHeader() {
    const OpenHeader open;
    QCOMPARE(open.Window->windowTitle(), "Print Options");
    QVERIFY(open.Window->isModal());
    QCOMPARE(open.Window->findChild<QGroupBox*>()->title(), "Report Header");
    const auto& choices = open.Find<QComboBox>("cboUserLogoOptions");
    QCOMPARE(choices.count(), 3);
    QCOMPARE(choices.itemText(0), "None");
    QCOMPARE(choices.itemText(1), "Generic House Logo");
    QCOMPARE(choices.itemText(2), "User Logo");
    QCOMPARE(open.Chosen(), "None");
    QCOMPARE(open.FieldText("ecBuilderName"), "");
    QCOMPARE(open.FieldText("txtHomeBuyer"), "");
    QCOMPARE(open.FieldText("ecLogoFile"), unnamed);
    QCOMPARE(open.LabelText("lblUserLogo").remove('&'), "User Logo: ");
    QVERIFY(!open.FileEnabled());
    QVERIFY(!open.ShowsPicture());
}

void HeaderDialogTest::noLogoClearsThePicture() {
    OpenHeader open;
    open.Bring("GenericHouseLogo.bmp");
    open.Choose(Generic);
    QVERIFY(open.ShowsPicture());
    open.Choose(None);
    QVERIFY(!open.ShowsPicture());
    QVERIFY(!open.FileEnabled());
}

void HeaderDialogTest::genericHouseIsShown() {
    OpenHeader open;
    open.Bring("GenericHouseLogo.bmp");
    open.Choose(User);
    open.Choose(Generic);
    QVERIFY(open.ShowsPicture());
    QVERIFY(!open.FileEnabled());
}

void HeaderDialogTest::missingGenericHouseShowsNothing() {
    OpenHeader open;
    open.Choose(Generic);
    QVERIFY(!open.ShowsPicture());
    QVERIFY(open.Outside.Messages.empty());
}

void HeaderDialogTest::usersLogoIsShownInItsProportions() {
    OpenHeader open;
    open.Find<QLineEdit>("ecLogoFile").setText(open.MakeLogo());
    open.Choose(User);
    QVERIFY(open.FileEnabled());
    const auto& label = open.Find<QLabel>("imgUserLogo");
    const QPixmap shown = label.pixmap(Qt::ReturnByValue);
    QCOMPARE(shown.deviceIndependentSize().width(), qreal(label.width()));
    QCOMPARE(shown.deviceIndependentSize().height(), label.width() / 4.0); // 400 x 100
}

void HeaderDialogTest::usersLogoWithoutANameIsNotLoaded() {
    OpenHeader open;
    // even if a file with that exact name is in the folder
    QVERIFY(QFile::rename(open.MakeLogo(), open.Folder.filePath(unnamed)));
    open.Bring("GenericHouseLogo.bmp");
    open.Choose(Generic);
    open.Choose(User);
    QVERIFY(open.FileEnabled());
    QVERIFY(!open.ShowsPicture());
}

void HeaderDialogTest::brokenLogoShowsNothing() {
    OpenHeader open;
    QFile file(open.Folder.filePath("Broken.bmp"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("BM, and then no picture");
    file.close();
    open.Choose(User);
    for (const QString& name : {file.fileName(), open.Folder.filePath("Missing.bmp")}) {
        open.LogoToChoose = name;
        ClickAt(open.Find("bLogoFile"));
        QCOMPARE(open.FieldText("ecLogoFile"), name);
        QVERIFY(!open.ShowsPicture());
    }
    QVERIFY(open.Outside.Messages.empty());
}

void HeaderDialogTest::typedLogoIsShownWhenItIsComplete() {
    OpenHeader open;
    open.Choose(User);
    for (const char* format : {"BMP", "PNG", "JPEG"}) {
        open.Type("ecLogoFile", "none");
        open.Find("bOK").setFocus();
        QVERIFY(!open.ShowsPicture());
        open.Type("ecLogoFile", open.MakeLogo(format));
        open.Find("bOK").setFocus();
        QVERIFY2(open.ShowsPicture(), format);
    }
}

void HeaderDialogTest::chosenLogoIsNamedAndShown() {
    OpenHeader open;
    open.Choose(User);
    open.LogoToChoose = open.MakeLogo();
    ClickAt(open.Find("bLogoFile"));
    QCOMPARE(open.FieldText("ecLogoFile"), open.LogoToChoose);
    QVERIFY(open.ShowsPicture());
    const QString chosen = std::exchange(open.LogoToChoose, QString());
    ClickAt(open.Find("bLogoFile")); // the file chooser is dismissed
    QCOMPARE(open.FieldText("ecLogoFile"), chosen);
    QVERIFY(open.ShowsPicture());
}

void HeaderDialogTest::choosingReturnsToTheProgramsFolder() {
    OpenHeader open;
    open.Choose(User);
    for (const bool chosen : {true, false}) {
        QVERIFY(QDir::setCurrent(QDir::rootPath()));
        open.LogoToChoose = chosen ? open.MakeLogo() : QString();
        ClickAt(open.Find("bLogoFile"));
        QCOMPARE(QDir::current(), QDir(open.Folder.path()));
    }
}

void HeaderDialogTest::chooserOffersPictures() {
    QWidget parent;
    const auto dialog = LogoDialog(parent);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    QCOMPARE(dialog->windowTitle(), "Builder Logo Selection");
    QCOMPARE(dialog->defaultSuffix(), "BMP");
    QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptOpen);
    const auto* types = dialog->findChild<QComboBox*>("fileTypeCombo");
    QVERIFY(types);
    QCOMPARE(types->currentText(), "Pictures (*.bmp,*.ico,*.rle,*.wmf)");
    QCOMPARE(dialog->nameFilters(),
             QStringList{"Pictures (*.bmp,*.ico,*.rle,*.wmf) (*.bmp *.ico *.rle *.wmf)"});
}

void HeaderDialogTest::okSaves() {
    OpenHeader open;
    open.Type("ecBuilderName", "Acme Homes");
    open.Type("txtHomeBuyer", "Kim Park");
    open.Choose(User);
    open.LogoToChoose = open.MakeLogo();
    ClickAt(open.Find("bLogoFile"));
    ClickAt(open.Find("bOK"));
    QVERIFY(!open.Window->isVisible());
    QCOMPARE(open.Lines("BUILDERNAME"), QByteArrayList{"BUILDERNAME=Acme Homes"});
    QCOMPARE(open.Lines("LOGOOPTION"), QByteArrayList{"LOGOOPTION=2"});
    QCOMPARE(open.Lines("LOGOFILE"), QByteArrayList{"LOGOFILE=" + open.LogoToChoose.toLatin1()});
    QCOMPARE(open.Lines("FEATURE1"), QByteArrayList{"FEATURE1=Finished basement"});
    QCOMPARE(open.State.Header.HomeBuyer, "Kim Park");
    QCOMPARE(LogoPicture(open.State, Module1::StoredLogoOption(open.State)),
             std::filesystem::path(open.LogoToChoose.toStdString()));
}

void HeaderDialogTest::missingLogoOptionIsNeverAdded() {
    OpenHeader open("X=1\r\n");
    open.Choose(Generic);
    ClickAt(open.Find("bOK"));
    QVERIFY(!open.Window->isVisible());
    QVERIFY(open.Lines("LOGOOPTION").isEmpty());
    open.Reopen();
    QCOMPARE(open.Chosen(), "None");
}

void HeaderDialogTest::sameRunRemembersTheBuyer() {
    OpenHeader open;
    open.Type("txtHomeBuyer", "Kim Park");
    ClickAt(open.Find("bOK"));
    open.Reopen();
    QCOMPARE(open.FieldText("txtHomeBuyer"), "Kim Park");
}

void HeaderDialogTest::newRunRemembersOnlyBuilderAndLogo() {
    OpenHeader open;
    open.Bring("GenericHouseLogo.bmp");
    open.Type("ecBuilderName", "Acme Homes");
    open.Type("txtHomeBuyer", "Kim Park");
    open.Choose(Generic);
    ClickAt(open.Find("bOK"));
    open.Restart();
    QCOMPARE(open.FieldText("txtHomeBuyer"), "");
    QCOMPARE(open.FieldText("ecBuilderName"), "Acme Homes");
    QCOMPARE(open.Chosen(), "Generic House Logo");
    QVERIFY(open.ShowsPicture());
}

void HeaderDialogTest::cancelChangesNothing() {
    OpenHeader open;
    const QByteArray before = open.Settings();
    open.Type("ecBuilderName", "Acme Homes");
    open.Type("txtHomeBuyer", "Kim Park");
    open.Choose(User);
    ClickAt(open.Find("bCancel"));
    QVERIFY(!open.Window->isVisible());
    QCOMPARE(open.Settings(), before);
    QCOMPARE(open.State.Header.HomeBuyer, "");
    open.Reopen();
    QCOMPARE(open.FieldText("ecBuilderName"), "");
    QCOMPARE(open.Chosen(), "None");
}

void HeaderDialogTest::fieldsTakeNamesInEveryScript_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("Arabic") << "محمد";
    QTest::newRow("Cyrillic") << "Ольга";
    QTest::newRow("Devanagari") << "अनीता";
    QTest::newRow("Han") << "李明";
    QTest::newRow("Hangul") << "김민준";
    QTest::newRow("Hebrew") << "יעל";
    QTest::newRow("Thai") << "สมชาย";
    QTest::newRow("Vietnamese") << "Ngọc Ánh";
}

void HeaderDialogTest::fieldsTakeNamesInEveryScript() {
    QFETCH(QString, name);
    OpenHeader open;
    auto& builder = open.Find<QLineEdit>("ecBuilderName");
    builder.setFocus();
    QInputMethodEvent composed;
    composed.setCommitString(name);
    QCoreApplication::sendEvent(&builder, &composed);
    QGuiApplication::clipboard()->setText(name);
    open.Find("txtHomeBuyer").setFocus();
    open.Press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(open.FieldText("ecBuilderName"), name);
    QCOMPARE(open.FieldText("txtHomeBuyer"), name);
    ClickAt(open.Find("bOK"));
    QCOMPARE(open.State.Header.BuilderName, name.toStdString());
    QCOMPARE(open.State.Header.HomeBuyer, name.toStdString());
}

void HeaderDialogTest::unkeptNameIsUsedAfterASentence() {
    OpenHeader open("BUILDERNAME=Acme\r\nLOGOOPTION=0\r\n");
    open.Find<QLineEdit>("ecBuilderName").setText("李明");
    open.Choose(Generic);
    ClickAt(open.Find("bOK"));
    QVERIFY(!open.Window->isVisible());
    QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
    QCOMPARE(open.Outside.Messages.front().Icon, MessageIcon::Information);
    const std::string text = open.Outside.TakeTexts().front();
    for (const char* part : {"\"李明\"", "is used for this report", "\"李\"", "Ledgrove.ini"})
        QVERIFY2(text.find(part) != std::string::npos, part);
    QCOMPARE(open.Lines("BUILDERNAME"), QByteArrayList{"BUILDERNAME=Acme"});
    QCOMPARE(open.Lines("LOGOOPTION"), QByteArrayList{"LOGOOPTION=1"});
    open.Reopen();
    QCOMPARE(open.FieldText("ecBuilderName"), "李明");
    open.Type("ecBuilderName", "Acme");
    ClickAt(open.Find("bOK"));
    QVERIFY(open.Outside.Messages.empty());
}

void HeaderDialogTest::refusedSaveKeepsTheDialogOpen() {
    OpenHeader open;
    const QByteArray before = open.Settings();
    open.Find<QLineEdit>("ecLogoFile").setText(u"/sun \u2600.bmp"_qs);
    ClickAt(open.Find("bOK"));
    QVERIFY(open.Window->isVisible());
    QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
    QCOMPARE(open.Outside.Messages.front().Icon, MessageIcon::Exclamation);
    QCOMPARE(open.FieldText("ecLogoFile"), u"/sun \u2600.bmp"_qs);
    QCOMPARE(open.Settings(), before);
}

void HeaderDialogTest::namesAreWords() {
    OpenHeader open;
    QCOMPARE(SpokenCodeNames(*open.Window), QStringList());
}

void HeaderDialogTest::mnemonicsAndTabOrder() {
    OpenHeader open;
    QCOMPARE(Mnemonics(*open.Window), "ABCHLORU");
    open.Choose(User);
    const QStringList expected = {"ecBuilderName", "txtHomeBuyer", "cboUserLogoOptions",
                                  "ecLogoFile",    "bLogoFile",    "bOK",
                                  "bCancel",       "bHelp",        "ecBuilderName"};
    QCOMPARE(open.Focused(), "ecBuilderName");
    QCOMPARE(open.TabWalk("ecBuilderName", expected.size()), expected);
    const QStringList once = expected.first(expected.size() - 1);
    QCOMPARE(InReadingOrder(*open.Window, once), once);
    open.Find("ecBuilderName").setFocus();
    open.Press(Qt::Key_Return);
    QCOMPARE(open.Focused(), "txtHomeBuyer");
    QVERIFY(open.Window->isVisible());
}

QTEST_MAIN(HeaderDialogTest)
#include "HeaderDialogTest.moc"
