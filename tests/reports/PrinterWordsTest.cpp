#include "reports/PrinterWords.h"

#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

TEST(OneLine, HasABlankForEachControlCharacterAndLineSeparator) {
    EXPECT_EQ(OneLine("a\nb\r\tc\x7F"), "a b  c ");
    EXPECT_EQ(OneLine("a\xC2\x85z\xE2\x80\xA8z\xE2\x80\xA9z"), "a z z z"); // U+0085, U+2028, U+2029
    EXPECT_EQ(OneLine(std::string_view("a\0b", 3)), "a b");
}

TEST(OneLine, KeepsEveryOtherCharacter) {
    for (const char* text : {"", "Laser 600", "B\xC3\xBCro", "\xC2\xA0", "\xE2\x80\x93", "\xE6\x9D\x8E"})
        EXPECT_EQ(OneLine(text), text);
}

TEST(ReadableAddress, HasItsPercentCodesDecoded) {
    EXPECT_EQ(ReadableAddress("ipp://host/My%20Printer"), "ipp://host/My Printer");
    EXPECT_EQ(ReadableAddress("dnssd://B%C3%BCro%20%2f1"), "dnssd://B\xC3\xBCro /1");
}

TEST(ReadableAddress, KeepsWhatIsNotACode) {
    for (const char* text : {"", "socket://lab", "usb://100%", "usb://%4", "usb://%-1", "usb://%zz"})
        EXPECT_EQ(ReadableAddress(text), text);
}

TEST(ReadableAddress, StaysCodedWhereItWouldNotBeUtf8) {
    for (const char* text : {"usb://%FF%20x", "usb://%C3", "usb://%C3%20", "usb://%A9", "usb://%F5%80%80%80"})
        EXPECT_EQ(ReadableAddress(text), text);
}

TEST(ReadableAddress, NeverBreaksTheLine) {
    EXPECT_EQ(ReadableAddress("usb://a%0Ab%00c\nd"), "usb://a b c d");
}

TEST(PausedQuestion, SaysWhatWillHappen) {
    EXPECT_EQ(PausedQuestion("The report", "Office", ""),
              "The printer \"Office\" is paused. The report waits there until someone resumes the printer. "
              "Print it anyway?");
    EXPECT_EQ(PausedQuestion("The help", "Office", "Toner is empty."),
              "The printer \"Office\" is paused (Toner is empty). The help waits there until someone resumes "
              "the printer. Print it anyway?");
}

TEST(NotPrinted, SaysThatThePrintServiceIsGone) {
    EXPECT_EQ(
        NotPrinted("The report", "Office", {PrinterState::NoService, {}}),
        "The report was not printed: the printer \"Office\" cannot be reached, because the print service "
        "is not running or does not answer. Start the print service and try again. \"Print to PDF\" "
        "works without it.");
}

TEST(NotPrinted, SaysThatThePrinterIsGone) {
    EXPECT_EQ(
        NotPrinted("The report", "Office", {PrinterState::Removed, "client-error-not-found"}),
        "The report was not printed: the printer \"Office\" is no longer there. Choose another printer.");
}

TEST(NotPrinted, SaysThatThePrinterAcceptsNothing) {
    EXPECT_EQ(
        NotPrinted("The help", "Office", {PrinterState::Refusing, "Being moved"}),
        "The help was not printed: the printer \"Office\" does not accept jobs now (Being moved). Choose "
        "another printer, or try again when this one accepts jobs.");
}

TEST(NotPrinted, GivesTheServersRefusalOfAReadyPrinter) {
    EXPECT_EQ(NotPrinted("The report", "Office", {PrinterState::Ready, "Too many\njobs.."}),
              "The report was not printed: the printer \"Office\" did not accept it (Too many jobs). Choose "
              "another printer, or try again when this one is ready.");
}

} // namespace
} // namespace Ledgrove
