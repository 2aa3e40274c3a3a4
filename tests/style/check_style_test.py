"""Tests which files check_style.py allows to include which others."""
import unittest

from check_style import include_faults


class Includes(unittest.TestCase):
    def allowed(self, name, *includes):
        for include in includes:
            self.assertEqual(list(include_faults(name, f'#include "{include}"\n')), [])

    def refused(self, name, *includes):
        for include in includes:
            self.assertEqual(len(list(include_faults(name, f'#pragma once\n\n#include "{include}"\nint x;\n'))), 1, (name, include))

    def test_a_file_includes_its_own_layer_and_lower_ones(self):
        self.allowed("base/Text.cpp", "base/Text.h", "string")
        self.allowed("ui/Entry.cpp", "ui/Entry.h", "settings/Rewrite.h", "engine/Host.h", "base/Text.h")
        self.refused("base/Text.cpp", "engine/Host.h", "app/batch/Comparison.h")
        self.refused("engine/Host.h", "settings/Rewrite.h", "ui/Entry.h", "reports/modPrint.h")
        self.refused("ui/Entry.cpp", "reports/modPrint.h", "app/files/TabText.h")

    def test_the_layers_of_app_are_ordered(self):
        self.allowed("app/files/TabText.cpp", "app/batch/CsvCompare.h", "reports/modPrint.h")
        self.allowed("app/windows/MainMenu.cpp", "app/files/TabText.h", "app/batch/CsvCompare.h")
        self.allowed("app/cli/main.cpp", "app/batch/CompareCommand.h", "app/files/TabText.h", "app/cli/CommandWords.h")
        self.refused("app/batch/CsvCompare.cpp", "app/files/TabText.h", "app/windows/MainMenu.h", "app/cli/CommandWords.h")
        self.refused("app/files/TabText.cpp", "app/windows/MainMenu.h", "app/report/Sections.h")
        self.refused("app/windows/MainMenu.cpp", "app/ledgrove/Options.h")

    def test_a_program_includes_no_other_program(self):
        self.refused("app/report/main.cpp", "app/cli/CommandWords.h", "app/chart/Kinds.h")
        self.refused("app/metafile/main.cpp", "app/report/Sections.h")

    def test_a_core_includes_no_window(self):
        self.refused("ui/Entry.cpp", "ui/windows/frmMain.h")
        self.refused("reports/modPrint.cpp", "reports/windows/PageView.h", "ui/windows/frmMain.h")
        self.refused("app/files/TabText.cpp", "ui/windows/frmMain.h", "reports/windows/PageView.h")
        self.refused("app/cli/main.cpp", "app/windows/Offscreen.h", "reports/windows/ReportFile.h")
        self.allowed("reports/windows/PageView.cpp", "ui/windows/FormStyle.h", "reports/modPrint.h")
        self.allowed("app/report/main.cpp", "app/windows/Offscreen.h", "reports/windows/ReportFile.h")

    def test_a_core_includes_no_toolkit(self):
        self.refused("ui/Entry.cpp", "QString", "QtGlobal")
        self.refused("app/cli/main.cpp", "QString")
        self.refused("app/metafile/main.cpp", "QImage")
        self.allowed("ui/windows/frmMain.cpp", "QString", "QtGlobal")
        self.allowed("app/chart/main.cpp", "QApplication")

    def test_a_library_that_is_loaded_at_run_time_is_not_linked(self):
        self.refused("ui/windows/ChartPlace.cpp", "ui/windows/charts/QtChart.h")
        self.refused("app/windows/ExportCommands.cpp", "ui/windows/charts/ChartPicture.h", "reports/windows/cups/CupsServer.h")
        self.refused("reports/windows/frmPrint.cpp", "reports/windows/cups/CupsServer.h")
        self.refused("app/report/main.cpp", "ui/windows/charts/ChartPicture.h")
        self.allowed("ui/windows/charts/BarChart.cpp", "ui/windows/charts/ChartLook.h", "ui/windows/ChartWidget.h")
        self.allowed("app/chart/main.cpp", "ui/windows/charts/ChartPicture.h")

    def test_a_folder_without_a_layer_is_refused(self):
        self.refused("app/mail/Send.cpp", "string")
        self.refused("app/main.cpp", "string")

    def test_every_spelling_of_an_include_is_checked(self):
        for line in ('#include <ui/Entry.h>', '  #include "ui/Entry.h"', '# include "ui/Entry.h"', '#include "ui/Entry.h" // why'):
            self.assertEqual(len(list(include_faults("engine/Host.h", line))), 1, line)
        self.assertEqual(list(include_faults("engine/Host.h", '// #include "ui/Entry.h"')), [])

    def test_tests_may_include_everything(self):
        self.allowed("tests/ui/EntryTest.cpp", "app/cli/CommandWords.h", "QString", "ui/windows/charts/QtChart.h")


if __name__ == "__main__":
    unittest.main()
