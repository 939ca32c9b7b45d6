// SPDX-License-Identifier: GPL-3.0-or-later
// What the form is to be, written out by hand: its widgets, where they lie, what they are set to and what they say.

#pragma once

namespace form {

// What a row doesn't tell is left to the style, or to the widget's parent.
constexpr int unset = -1;
constexpr int inherited = 0;

// clang-format off

struct WidgetRow
{
    const char *object;
    const char *className;
    const char *parent;
};

constexpr WidgetRow widgetRows[] = {
    {"centralWidget",                    "QWidget",      "KestruneClass"},
    {"wgtLeftMenu",                      "QWidget",      "centralWidget"},
    {"btnMenuHome",                      "QPushButton",  "wgtLeftMenu"},
    {"btnMenuService",                   "QPushButton",  "wgtLeftMenu"},
    {"btnMenuTask",                      "QPushButton",  "wgtLeftMenu"},
    {"btnMenuPackage",                   "QPushButton",  "wgtLeftMenu"},
    {"btnMenuTweak",                     "QPushButton",  "wgtLeftMenu"},
    {"btnMenuInfo",                      "QPushButton",  "wgtLeftMenu"},
    {"btnMenuOptions",                   "QPushButton",  "wgtLeftMenu"},
    {"btnMenuAbout",                     "QPushButton",  "wgtLeftMenu"},
    {"wgtMain",                          "QWidget",      "centralWidget"},
    {"tabWidget",                        "QTabWidget",   "wgtMain"},
    {"wgtStatus",                        "QWidget",      "wgtMain"},
    {"lblStatus",                        "QLabel",       "wgtStatus"},
    {"pgrBar",                           "QProgressBar", "wgtStatus"},
    {"btnBrokenOff",                     "QPushButton",  "wgtStatus"},

    {"tabAutomatizer",                   "QWidget",      "qt_tabwidget_stackedwidget"},
    {"wgtAutomatizer",                   "QWidget",      "tabAutomatizer"},
    {"lblHomeTop",                       "QLabel",       "wgtAutomatizer"},
    {"label_4",                          "QLabel",       "wgtAutomatizer"},
    {"cbAutorunFeatures",                "QComboBox",    "wgtAutomatizer"},
    {"txtAutomatizer",                   "QTextBrowser", "wgtAutomatizer"},
    {"chkAutomatizerProgram",            "QCheckBox",    "wgtAutomatizer"},
    {"chkAutomatizerTweak",              "QCheckBox",    "wgtAutomatizer"},
    {"btnAutomatizerAnalyze",            "QPushButton",  "wgtAutomatizer"},
    {"btnAutomatize",                    "QPushButton",  "wgtAutomatizer"},
    {"btnAutomatizerRestore",            "QPushButton",  "wgtAutomatizer"},

    {"tabService",                       "QWidget",      "qt_tabwidget_stackedwidget"},
    {"wgtSvc",                           "QWidget",      "tabService"},
    {"lblSvcTop",                        "QLabel",       "wgtSvc"},
    {"label_5",                          "QLabel",       "wgtSvc"},
    {"tblSvc",                           "QTableWidget", "wgtSvc"},
    {"label_3",                          "QLabel",       "wgtSvc"},
    {"btnSvcViewDisabled",               "QPushButton",  "wgtSvc"},
    {"btnSvcRestore",                    "QPushButton",  "wgtSvc"},
    {"btnSvcAssist",                     "QPushButton",  "wgtSvc"},
    {"cbSvcFeatures",                    "QComboBox",    "wgtSvc"},
    {"btnSvcDisable",                    "QPushButton",  "wgtSvc"},

    {"tabTask",                          "QWidget",      "qt_tabwidget_stackedwidget"},
    {"wgtTask",                          "QWidget",      "tabTask"},
    {"lblTaskTop",                       "QLabel",       "wgtTask"},
    {"label_2",                          "QLabel",       "wgtTask"},
    {"tblTasks",                         "QTableWidget", "wgtTask"},
    {"btnTaskRestore",                   "QPushButton",  "wgtTask"},
    {"btnTaskAssist",                    "QPushButton",  "wgtTask"},
    {"btnTaskDisable",                   "QPushButton",  "wgtTask"},

    {"tabAutorun",                       "QWidget",      "qt_tabwidget_stackedwidget"},
    {"wgtAutorun",                       "QWidget",      "tabAutorun"},
    {"lblAutorunTop",                    "QLabel",       "wgtAutorun"},
    {"label_10",                         "QLabel",       "wgtAutorun"},
    {"tblAutorun",                       "QTableWidget", "wgtAutorun"},
    {"btnAutorunViewDisabled",           "QPushButton",  "wgtAutorun"},
    {"btnAutorun",                       "QPushButton",  "wgtAutorun"},

    {"tabPackage",                       "QWidget",      "qt_tabwidget_stackedwidget"},
    {"wgtPackage",                       "QWidget",      "tabPackage"},
    {"lblPackageTop",                    "QLabel",       "wgtPackage"},
    {"label_7",                          "QLabel",       "wgtPackage"},
    {"tblPackages",                      "QTableWidget", "wgtPackage"},
    {"btnPackagesViewDisabled",          "QPushButton",  "wgtPackage"},
    {"btnPackagesUninst",                "QPushButton",  "wgtPackage"},

    {"tabTweak",                         "QWidget",      "qt_tabwidget_stackedwidget"},
    {"scrollArea",                       "QScrollArea",  "tabTweak"},
    {"scrollAreaWidgetContents",         "QWidget",      "qt_scrollarea_viewport"},
    {"lblTweakTop",                      "QLabel",       "scrollAreaWidgetContents"},
    {"label_8",                          "QLabel",       "scrollAreaWidgetContents"},
    {"txtGaming12",                      "QTextBrowser", "scrollAreaWidgetContents"},
    {"lblSsdTop",                        "QLabel",       "scrollAreaWidgetContents"},
    {"chkSsd8",                          "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkSsd3",                          "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkSsd1",                          "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkSsd2",                          "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkSsd4",                          "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkSsd5",                          "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkSsd6",                          "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkSsd7",                          "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkSsd9",                          "QCheckBox",    "scrollAreaWidgetContents"},
    {"btnSsd8",                          "QPushButton",  "scrollAreaWidgetContents"},
    {"txtSsd8",                          "QTextBrowser", "scrollAreaWidgetContents"},
    {"lblGamingTop",                     "QLabel",       "scrollAreaWidgetContents"},
    {"chkGaming5",                       "QCheckBox",    "scrollAreaWidgetContents"},
    {"frame",                            "QFrame",       "scrollAreaWidgetContents"},
    {"chkGaming11",                      "QCheckBox",    "frame"},
    {"cbWin32PrioritySeparation",        "QComboBox",    "frame"},
    {"txtGaming11",                      "QTextBrowser", "frame"},
    {"chkGaming2",                       "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkGaming7",                       "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkGaming14",                      "QCheckBox",    "scrollAreaWidgetContents"},
    {"txtGaming011",                     "QTextBrowser", "scrollAreaWidgetContents"},
    {"chkGaming1",                       "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkGaming12",                      "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkGaming13",                      "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkGaming3",                       "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkGaming6",                       "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkGaming4",                       "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkGaming8",                       "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkGaming9",                       "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkGaming10",                      "QCheckBox",    "scrollAreaWidgetContents"},
    {"lblWindowsTop",                    "QLabel",       "scrollAreaWidgetContents"},
    {"chkWindows1",                      "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkWindows8",                      "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkWindows7",                      "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkWindows6",                      "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkWindows5",                      "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkWindows2",                      "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkWindows3",                      "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkWindows4",                      "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkWindows12",                     "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkWindows9",                      "QCheckBox",    "scrollAreaWidgetContents"},
    {"chkWindows10",                     "QCheckBox",    "scrollAreaWidgetContents"},
    {"btnTweakApply",                    "QPushButton",  "scrollAreaWidgetContents"},

    {"tabInfo",                          "QWidget",      "qt_tabwidget_stackedwidget"},
    {"wgtInfo",                          "QWidget",      "tabInfo"},
    {"lblInfoTop",                       "QLabel",       "wgtInfo"},
    {"txtInfo",                          "QTextBrowser", "wgtInfo"},

    {"tabOptions",                       "QWidget",      "qt_tabwidget_stackedwidget"},
    {"wgtOptions",                       "QWidget",      "tabOptions"},
    {"lblOptionsTop",                    "QLabel",       "wgtOptions"},
    {"label_6",                          "QLabel",       "wgtOptions"},
    {"cbOptionsLang",                    "QComboBox",    "wgtOptions"},
    {"label_11",                         "QLabel",       "wgtOptions"},
    {"cbOptionsTheme",                   "QComboBox",    "wgtOptions"},
    {"chkOptionsStartAsAdmin",           "QCheckBox",    "wgtOptions"},
    {"chkOptionsCheckUpdate",            "QCheckBox",    "wgtOptions"},
    {"chkOptionsGetWinSxsSize",          "QCheckBox",    "wgtOptions"},
    {"chkOptionsMonitor",                "QCheckBox",    "wgtOptions"},
    {"label_9",                          "QLabel",       "wgtOptions"},
    {"cbOptionsMonitorInterval",         "QComboBox",    "wgtOptions"},
    {"chkOptionsMonitorThreadAndHandle", "QCheckBox",    "wgtOptions"},
    {"btnOptionsWayBack",                "QPushButton",  "wgtOptions"},
    {"btnOptionsPreview",                "QPushButton",  "wgtOptions"},

    {"tabAbout",                         "QWidget",      "qt_tabwidget_stackedwidget"},
    {"wgtAbout",                         "QWidget",      "tabAbout"},
    {"lblAboutTop",                      "QLabel",       "wgtAbout"},
    {"txtAbout",                         "QTextBrowser", "wgtAbout"},
};

/** Pages of the tab widget, in order. */
constexpr const char *pageRows[] = {
    "tabAutomatizer", "tabService", "tabTask", "tabAutorun", "tabPackage",
    "tabTweak", "tabInfo", "tabOptions", "tabAbout",
};

struct LayoutRow
{
    const char *object;
    const char *className;
    const char *parent; ///< a widget's or a layout's name
    int left, top, right, bottom;
    int horizontal, vertical; ///< spacing; a box has one of them for both
};

constexpr LayoutRow layoutRows[] = {
    {"gridLayout",         "QGridLayout", "centralWidget",            0,     0,     0,     0,     0,     0},
    {"verticalLayout_3",   "QVBoxLayout", "wgtLeftMenu",              0,     0,     0,     0,     0,     0},
    {"gridLayout_2",       "QGridLayout", "wgtMain",                  0,     unset, unset, unset, 0,     0},
    {"horizontalLayout",   "QHBoxLayout", "wgtStatus",                unset, 0,     0,     0,     28,    28},

    {"gridLayout_15",      "QGridLayout", "tabAutomatizer",           0,     unset, 0,     unset, 6,     6},
    {"gridLayout_4",       "QGridLayout", "tabService",               0,     unset, 0,     unset, 6,     6},
    {"gridLayout_6",       "QGridLayout", "tabTask",                  0,     unset, 0,     unset, 6,     6},
    {"gridLayout_12",      "QGridLayout", "tabAutorun",               0,     unset, 0,     unset, 6,     6},
    {"gridLayout_8",       "QGridLayout", "tabPackage",               0,     unset, 0,     unset, 6,     6},
    {"gridLayout_9",       "QGridLayout", "tabTweak",                 0,     unset, 0,     unset, 6,     6},
    {"gridLayout_17",      "QGridLayout", "tabInfo",                  0,     unset, 0,     unset, 6,     6},
    {"gridLayout_20",      "QGridLayout", "tabOptions",               0,     unset, 0,     unset, 6,     6},
    {"gridLayout_13",      "QGridLayout", "tabAbout",                 0,     unset, 0,     unset, 6,     6},

    {"gridLayout_10",      "QGridLayout", "wgtAutomatizer",           unset, unset, unset, 12,    6,     18},
    {"gridLayout_3",       "QGridLayout", "wgtSvc",                   unset, unset, unset, 12,    6,     18},
    {"gridLayout_5",       "QGridLayout", "wgtTask",                  unset, unset, unset, 12,    6,     18},
    {"gridLayout_14",      "QGridLayout", "wgtAutorun",               unset, unset, unset, 12,    6,     18},
    {"gridLayout_7",       "QGridLayout", "wgtPackage",               unset, unset, unset, 12,    6,     18},
    {"gridLayout_19",      "QGridLayout", "scrollAreaWidgetContents", unset, unset, 9,     12,    6,     18},
    {"gridLayout_18",      "QGridLayout", "wgtInfo",                  unset, unset, unset, 0,     6,     18},
    {"verticalLayout",     "QVBoxLayout", "wgtAbout",                 unset, unset, unset, 12,    unset, unset},

    // The style gives a layout inside a layout no margins.
    {"horizontalLayout_2", "QHBoxLayout", "gridLayout_10",            0,     0,     0,     0,     6,     6},
};

struct CellRow
{
    const char *layout;
    const char *object;
    int row, column, columns;
};

constexpr CellRow cellRows[] = {
    {"gridLayout",    "wgtLeftMenu",              0, 0, 1},
    {"gridLayout",    "wgtMain",                  0, 1, 1},
    {"gridLayout_2",  "tabWidget",                1, 0, 2},
    {"gridLayout_2",  "wgtStatus",                2, 0, 1},

    {"gridLayout_15", "wgtAutomatizer",           0, 0, 1},
    {"gridLayout_4",  "wgtSvc",                   0, 0, 1},
    {"gridLayout_6",  "wgtTask",                  0, 0, 1},
    {"gridLayout_12", "wgtAutorun",               0, 0, 1},
    {"gridLayout_8",  "wgtPackage",               0, 0, 1},
    {"gridLayout_9",  "scrollArea",               0, 0, 1},
    {"gridLayout_17", "wgtInfo",                  0, 0, 1},
    {"gridLayout_20", "wgtOptions",               0, 0, 1},
    {"gridLayout_13", "wgtAbout",                 0, 0, 1},

    {"gridLayout_10", "lblHomeTop",               0, 0, 1},
    {"gridLayout_10", "label_4",                  1, 0, 3},
    {"gridLayout_10", "cbAutorunFeatures",        3, 0, 2},
    {"gridLayout_10", "txtAutomatizer",           4, 0, 3},
    {"gridLayout_10", "chkAutomatizerProgram",    6, 0, 3},
    {"gridLayout_10", "chkAutomatizerTweak",      7, 0, 3},
    {"gridLayout_10", "horizontalLayout_2",       9, 0, 3},

    {"gridLayout_3",  "lblSvcTop",                0, 0, 2},
    {"gridLayout_3",  "label_5",                  1, 0, 2},
    {"gridLayout_3",  "tblSvc",                   3, 0, 2},
    {"gridLayout_3",  "label_3",                  4, 0, 1},
    {"gridLayout_3",  "btnSvcViewDisabled",       4, 1, 1},
    {"gridLayout_3",  "btnSvcRestore",            6, 0, 1},
    {"gridLayout_3",  "btnSvcAssist",             7, 0, 1},
    {"gridLayout_3",  "cbSvcFeatures",            7, 1, 1},
    {"gridLayout_3",  "btnSvcDisable",            8, 0, 1},

    {"gridLayout_5",  "lblTaskTop",               0, 0, 1},
    {"gridLayout_5",  "label_2",                  1, 0, 1},
    {"gridLayout_5",  "tblTasks",                 3, 0, 1},
    {"gridLayout_5",  "btnTaskRestore",           5, 0, 1},
    {"gridLayout_5",  "btnTaskAssist",            6, 0, 1},
    {"gridLayout_5",  "btnTaskDisable",           7, 0, 1},

    {"gridLayout_14", "lblAutorunTop",            0, 0, 1},
    {"gridLayout_14", "label_10",                 1, 0, 1},
    {"gridLayout_14", "tblAutorun",               3, 0, 1},
    {"gridLayout_14", "btnAutorunViewDisabled",   4, 0, 1},
    {"gridLayout_14", "btnAutorun",               6, 0, 1},

    {"gridLayout_7",  "lblPackageTop",            0, 0, 1},
    {"gridLayout_7",  "label_7",                  1, 0, 1},
    {"gridLayout_7",  "tblPackages",              3, 0, 1},
    {"gridLayout_7",  "btnPackagesViewDisabled",  4, 0, 1},
    {"gridLayout_7",  "btnPackagesUninst",        6, 0, 1},

    {"gridLayout_19", "lblTweakTop",              0, 0, 1},
    {"gridLayout_19", "label_8",                  1, 0, 1},
    {"gridLayout_19", "txtGaming12",              2, 0, 1},
    {"gridLayout_19", "lblSsdTop",                4, 0, 1},
    {"gridLayout_19", "chkSsd8",                  5, 0, 1},
    {"gridLayout_19", "chkSsd3",                  6, 0, 1},
    {"gridLayout_19", "chkSsd1",                  9, 0, 1},
    {"gridLayout_19", "chkSsd2",                 10, 0, 1},
    {"gridLayout_19", "chkSsd4",                 11, 0, 1},
    {"gridLayout_19", "chkSsd5",                 12, 0, 1},
    {"gridLayout_19", "chkSsd6",                 13, 0, 1},
    {"gridLayout_19", "chkSsd7",                 14, 0, 1},
    {"gridLayout_19", "chkSsd9",                 16, 0, 1},
    {"gridLayout_19", "btnSsd8",                 23, 0, 1},
    {"gridLayout_19", "txtSsd8",                 24, 0, 1},
    {"gridLayout_19", "lblGamingTop",            27, 0, 1},
    {"gridLayout_19", "chkGaming5",              28, 0, 1},
    {"gridLayout_19", "frame",                   33, 0, 1},
    {"gridLayout_19", "chkGaming2",              34, 0, 1},
    {"gridLayout_19", "chkGaming7",              36, 0, 1},
    {"gridLayout_19", "chkGaming14",             37, 0, 1},
    {"gridLayout_19", "txtGaming011",            38, 0, 1},
    {"gridLayout_19", "chkGaming1",              40, 0, 1},
    {"gridLayout_19", "chkGaming12",             42, 0, 1},
    {"gridLayout_19", "chkGaming13",             43, 0, 1},
    {"gridLayout_19", "chkGaming3",              44, 0, 1},
    {"gridLayout_19", "chkGaming6",              45, 0, 1},
    {"gridLayout_19", "chkGaming4",              46, 0, 1},
    {"gridLayout_19", "chkGaming8",              47, 0, 1},
    {"gridLayout_19", "chkGaming9",              48, 0, 1},
    {"gridLayout_19", "chkGaming10",             49, 0, 1},
    {"gridLayout_19", "lblWindowsTop",           52, 0, 1},
    {"gridLayout_19", "chkWindows1",             53, 0, 1},
    {"gridLayout_19", "chkWindows8",             54, 0, 1},
    {"gridLayout_19", "chkWindows7",             55, 0, 1},
    {"gridLayout_19", "chkWindows6",             56, 0, 1},
    {"gridLayout_19", "chkWindows5",             58, 0, 1},
    {"gridLayout_19", "chkWindows2",             59, 0, 1},
    {"gridLayout_19", "chkWindows3",             60, 0, 1},
    {"gridLayout_19", "chkWindows4",             61, 0, 1},
    {"gridLayout_19", "chkWindows12",            62, 0, 1},
    {"gridLayout_19", "chkWindows9",             63, 0, 1},
    {"gridLayout_19", "chkWindows10",            64, 0, 1},
    {"gridLayout_19", "btnTweakApply",           67, 0, 1},

    {"gridLayout_18", "lblInfoTop",               0, 0, 1},
    {"gridLayout_18", "txtInfo",                  1, 0, 1},
};

struct SpacerRow
{
    const char *layout;
    int row, column;
    int width, height;
};

constexpr SpacerRow spacerRows[] = {
    {"gridLayout_10",  2, 1, 20, 10},
    {"gridLayout_10",  5, 2, 20,  6},
    {"gridLayout_10",  8, 0, 20,  8},
    {"gridLayout_3",   2, 0, 20, 10},
    {"gridLayout_3",   5, 0, 20,  6},
    {"gridLayout_5",   2, 0, 20, 10},
    {"gridLayout_5",   4, 0, 20, 10},
    {"gridLayout_14",  2, 0, 20, 10},
    {"gridLayout_14",  5, 0, 20, 10},
    {"gridLayout_7",   2, 0, 20, 10},
    {"gridLayout_7",   5, 0, 20, 10},
    {"gridLayout_19",  3, 0, 20,  4},
    {"gridLayout_19", 26, 0, 20, 20},
    {"gridLayout_19", 51, 0, 20, 20},
    {"gridLayout_19", 66, 0,  0, 20},
};

struct BoxRow
{
    const char *layout;
    const char *objects; ///< in order
};

constexpr BoxRow boxRows[] = {
    {"verticalLayout_3",   "btnMenuHome btnMenuService btnMenuTask btnMenuPackage "
                           "btnMenuTweak btnMenuInfo btnMenuOptions btnMenuAbout"},
    {"horizontalLayout",   "lblStatus pgrBar btnBrokenOff"},
    {"horizontalLayout_2", "btnAutomatizerAnalyze btnAutomatize btnAutomatizerRestore"},
    {"verticalLayout",     "lblAboutTop txtAbout"},
};

struct RectangleRow
{
    const char *object;
    int x, y, width, height;
};

constexpr RectangleRow rectangleRows[] = {
    {"chkGaming11",                        0,   0, 579,  26},
    {"cbWin32PrioritySeparation",          0,  40, 551,  26},
    {"txtGaming11",                        0,  80, 581, 170},
    {"lblOptionsTop",                      9,   9,  71,  20},
    {"label_6",                           10,  70, 141,  21},
    {"cbOptionsLang",                    150,  70, 161,  24},
    {"label_11",                          10, 130, 141,  21},
    {"cbOptionsTheme",                   100, 130, 161,  24},
    {"chkOptionsStartAsAdmin",            10, 190, 541,  22},
    {"chkOptionsCheckUpdate",             10, 250, 571,  22},
    {"chkOptionsGetWinSxsSize",           10, 310, 571,  22},
    {"chkOptionsMonitor",                 10, 370, 571,  22},
    {"label_9",                           30, 410, 161,  21},
    {"cbOptionsMonitorInterval",         200, 410,  41,  24},
    {"chkOptionsMonitorThreadAndHandle", 290, 410, 271,  22},
    {"btnOptionsWayBack",                 10, 490, 301,  28},
    {"btnOptionsPreview",                 10, 525, 301,  28},
};

struct SettingRow
{
    const char *object;
    const char *property;
    const char *value;
};

/** Settings of single widgets; what isn't told here is as in any new widget of the class. */
constexpr SettingRow settingRows[] = {
    {"wgtLeftMenu",              "sizePolicy",                "Fixed Expanding"},
    {"wgtLeftMenu",              "minimumSize",               "180 x 0"},
    {"wgtLeftMenu",              "maximumSize",               "180 x 16777215"},
    {"tabWidget",                "tabPosition",               "North"},
    {"tabWidget",                "tabShape",                  "Rounded"},
    {"tabWidget",                "iconSize",                  "10 x 10"},
    {"tabWidget",                "usesScrollButtons",         "false"},
    {"tabWidget",                "documentMode",              "true"},
    {"tabWidget",                "focusPolicy",               "NoFocus"},
    {"tabWidget",                "currentIndex",              "0"},
    {"wgtStatus",                "minimumSize",               "0 x 24"},
    {"lblStatus",                "minimumSize",               "280 x 0"},
    {"lblStatus",                "textFormat",                "PlainText"},
    {"pgrBar",                   "maximumSize",               "16777215 x 14"},
    {"pgrBar",                   "value",                     "24"},
    {"btnBrokenOff",             "sizePolicy",                "Fixed Fixed"},
    {"btnBrokenOff",             "maximumSize",               "16777215 x 24"},
    {"btnBrokenOff",             "flat",                      "true"},

    {"cbAutorunFeatures",        "minimumSize",               "200 x 26"},
    {"cbAutorunFeatures",        "sizePolicy",                "Fixed Fixed"},
    {"cbAutorunFeatures",        "maxCount",                  "10"},
    {"cbAutorunFeatures",        "insertPolicy",              "NoInsert"},
    {"cbAutorunFeatures",        "frame",                     "false"},
    {"cbAutorunFeatures",        "currentIndex",              "-1"},
    {"txtAutomatizer",           "lineWidth",                 "0"},
    {"txtAutomatizer",           "frameShadow",               "Plain"},
    {"txtAutomatizer",           "acceptRichText",            "true"},
    {"txtAutomatizer",           "openLinks",                 "false"},
    {"chkAutomatizerProgram",    "checked",                   "true"},
    {"chkAutomatizerTweak",      "checked",                   "true"},

    {"tblSvc",                   "columnCount",               "3"},
    {"tblSvc",                   "selectionMode",             "SingleSelection"},
    {"tblSvc",                   "showGrid",                  "false"},
    {"tblSvc",                   "gridStyle",                 "NoPen"},
    {"tblSvc",                   "sortingEnabled",            "true"},
    {"tblSvc",                   "textElideMode",             "ElideNone"},
    {"tblSvc",                   "wordWrap",                  "true"},
    {"label_3",                  "minimumSize",               "0 x 36"},
    {"label_3",                  "sizePolicy",                "Preferred Fixed"},
    {"btnSvcViewDisabled",       "flat",                      "true"},
    {"btnSvcViewDisabled",       "layoutDirection",           "RightToLeft"},
    {"btnSvcViewDisabled",       "minimumSize",               "0 x 22"},
    {"btnSvcViewDisabled",       "sizePolicy",                "Minimum Fixed"},
    {"cbSvcFeatures",            "minimumSize",               "200 x 26"},
    {"cbSvcFeatures",            "sizePolicy",                "Fixed Fixed"},
    {"cbSvcFeatures",            "maxCount",                  "10"},
    {"cbSvcFeatures",            "currentIndex",              "-1"},

    {"tblTasks",                 "columnCount",               "3"},
    {"tblTasks",                 "selectionMode",             "NoSelection"},
    {"tblTasks",                 "showGrid",                  "false"},
    {"tblTasks",                 "gridStyle",                 "NoPen"},
    {"tblTasks",                 "sortingEnabled",            "true"},

    {"tblAutorun",               "columnCount",               "2"},
    {"tblAutorun",               "selectionMode",             "NoSelection"},
    {"tblAutorun",               "sortingEnabled",            "false"},
    {"btnAutorunViewDisabled",   "flat",                      "true"},
    {"btnAutorunViewDisabled",   "layoutDirection",           "RightToLeft"},
    {"btnAutorunViewDisabled",   "minimumSize",               "220 x 22"},
    {"btnAutorunViewDisabled",   "sizePolicy",                "Fixed Fixed"},

    {"tblPackages",              "columnCount",               "3"},
    {"tblPackages",              "selectionMode",             "NoSelection"},
    {"tblPackages",              "sortingEnabled",            "false"},
    {"btnPackagesViewDisabled",  "flat",                      "true"},
    {"btnPackagesViewDisabled",  "layoutDirection",           "RightToLeft"},
    {"btnPackagesViewDisabled",  "minimumSize",               "220 x 22"},
    {"btnPackagesViewDisabled",  "sizePolicy",                "Fixed Fixed"},

    {"scrollArea",               "frameShape",                "NoFrame"},
    {"scrollArea",               "widgetResizable",           "true"},
    {"lblTweakTop",              "minimumSize",               "0 x 0"},
    {"txtGaming12",              "minimumSize",               "0 x 42"},
    {"txtGaming12",              "maximumSize",               "16777215 x 42"},
    {"lblSsdTop",                "minimumSize",               "0 x 30"},
    {"chkSsd8",                  "minimumSize",               "0 x 32"},
    {"chkSsd3",                  "minimumSize",               "0 x 26"},
    {"chkSsd1",                  "minimumSize",               "0 x 26"},
    {"chkSsd2",                  "minimumSize",               "0 x 26"},
    {"chkSsd4",                  "minimumSize",               "0 x 26"},
    {"chkSsd5",                  "minimumSize",               "0 x 26"},
    {"chkSsd6",                  "minimumSize",               "0 x 26"},
    {"chkSsd7",                  "minimumSize",               "0 x 26"},
    {"chkSsd9",                  "minimumSize",               "0 x 26"},
    {"txtSsd8",                  "minimumSize",               "0 x 60"},
    {"txtSsd8",                  "maximumSize",               "16777215 x 60"},
    {"lblGamingTop",             "minimumSize",               "0 x 30"},
    {"chkGaming5",               "minimumSize",               "0 x 48"},
    {"frame",                    "minimumSize",               "0 x 248"},
    {"frame",                    "frameShape",                "NoFrame"},
    {"frame",                    "frameShadow",               "Raised"},
    {"frame",                    "lineWidth",                 "0"},
    {"chkGaming11",              "minimumSize",               "0 x 26"},
    {"cbWin32PrioritySeparation", "frame",                    "false"},
    {"cbWin32PrioritySeparation", "currentIndex",             "3"},
    {"txtGaming11",              "minimumSize",               "0 x 150"},
    {"chkGaming2",               "minimumSize",               "0 x 32"},
    {"chkGaming7",               "minimumSize",               "0 x 32"},
    {"chkGaming14",              "minimumSize",               "0 x 32"},
    {"txtGaming011",             "minimumSize",               "0 x 40"},
    {"txtGaming011",             "maximumSize",               "16777215 x 38"}, // below its minimum: the latter wins
    {"chkGaming1",               "minimumSize",               "0 x 26"},
    {"chkGaming12",              "minimumSize",               "0 x 32"},
    {"chkGaming13",              "minimumSize",               "0 x 42"},
    {"chkGaming3",               "minimumSize",               "0 x 26"},
    {"chkGaming3",               "checked",                   "true"},
    {"chkGaming6",               "minimumSize",               "0 x 26"},
    {"chkGaming4",               "minimumSize",               "0 x 26"},
    {"chkGaming8",               "minimumSize",               "0 x 26"},
    {"chkGaming9",               "minimumSize",               "0 x 32"},
    {"chkGaming10",              "minimumSize",               "0 x 32"},
    {"lblWindowsTop",            "minimumSize",               "0 x 30"},
    {"chkWindows1",              "minimumSize",               "0 x 26"},
    {"chkWindows8",              "minimumSize",               "0 x 32"},
    {"chkWindows7",              "minimumSize",               "0 x 32"},
    {"chkWindows6",              "minimumSize",               "0 x 26"},
    {"chkWindows5",              "minimumSize",               "0 x 26"},
    {"chkWindows2",              "minimumSize",               "0 x 26"},
    {"chkWindows3",              "minimumSize",               "0 x 26"},
    {"chkWindows4",              "minimumSize",               "0 x 26"},
    {"chkWindows12",             "minimumSize",               "0 x 26"},
    {"chkWindows9",              "minimumSize",               "0 x 26"},
    {"chkWindows10",             "minimumSize",               "0 x 26"},

    {"txtInfo",                  "minimumSize",               "0 x 506"},
    {"txtInfo",                  "frameShape",                "NoFrame"},
    {"txtInfo",                  "frameShadow",               "Sunken"},
    {"txtInfo",                  "verticalScrollBarPolicy",   "ScrollBarAlwaysOff"},
    {"txtInfo",                  "acceptDrops",               "false"},
    {"txtInfo",                  "openExternalLinks",         "true"},

    {"cbOptionsLang",            "currentIndex",              "0"},
    {"cbOptionsTheme",           "currentIndex",              "0"},
    {"cbOptionsMonitorInterval", "currentIndex",              "0"},
    {"chkOptionsGetWinSxsSize",  "checked",                   "true"},

    {"txtAbout",                 "minimumSize",               "0 x 400"},
    {"txtAbout",                 "frameShape",                "NoFrame"},
    {"txtAbout",                 "frameShadow",               "Sunken"},
    {"txtAbout",                 "acceptDrops",               "false"},
    {"txtAbout",                 "openLinks",                 "true"},
    {"txtAbout",                 "openExternalLinks",         "true"},
};

struct GroupSettingRow
{
    const char *objects;
    const char *property;
    const char *value;
};

/** Settings that several widgets share. */
constexpr GroupSettingRow groupSettingRows[] = {
    {"btnMenuHome btnMenuService btnMenuTask btnMenuPackage btnMenuTweak btnMenuInfo btnMenuOptions btnMenuAbout",
     "flat", "true"},
    {"btnMenuHome btnMenuService btnMenuTask btnMenuPackage btnMenuTweak btnMenuInfo btnMenuOptions btnMenuAbout",
     "minimumSize", "0 x 32"},
    {"btnMenuHome btnMenuService btnMenuTask btnMenuPackage btnMenuTweak btnMenuInfo btnMenuOptions btnMenuAbout",
     "sizePolicy", "Expanding Fixed"},
    {"btnAutomatizerAnalyze btnAutomatize btnAutomatizerRestore btnSvcRestore btnSvcAssist btnSvcDisable "
     "btnTaskRestore btnTaskAssist btnTaskDisable btnAutorun btnPackagesUninst btnSsd8 btnTweakApply",
     "minimumSize", "0 x 28"},
    {"label_4 label_5 label_2 label_10 label_7 label_8", "wordWrap", "true"},
    {"label_4 label_5 label_2 label_10 label_7 label_8", "scaledContents", "true"},
    {"tblSvc tblTasks tblAutorun tblPackages", "focusPolicy", "NoFocus"},
    {"tblSvc tblTasks tblAutorun tblPackages", "horizontalScrollMode", "ScrollPerPixel"},
    {"tblTasks tblAutorun tblPackages", "wordWrap", "false"}, // which would show "C:..." of a long path
    {"txtGaming12 txtSsd8 txtGaming011 txtGaming11", "frameShape", "NoFrame"},
    {"txtGaming12 txtSsd8 txtGaming011 txtGaming11", "lineWidth", "0"},
    {"txtGaming12 txtSsd8 txtGaming011 txtGaming11", "verticalScrollBarPolicy", "ScrollBarAlwaysOff"},
    {"txtGaming12 txtSsd8 txtGaming011 txtGaming11", "horizontalScrollBarPolicy", "ScrollBarAlwaysOff"},
    {"txtGaming12 txtSsd8 txtGaming011 txtGaming11", "acceptDrops", "false"},
    {"txtGaming12 txtSsd8 txtGaming011 txtGaming11", "openExternalLinks", "true"},
};

/** What is held against the tables above, of each widget that has it. */
constexpr const char *checkedProperties[] = {
    "minimumSize", "maximumSize", "sizePolicy", "sizeIncrement", "focusPolicy", "layoutDirection", "acceptDrops",
    "enabled", "contextMenuPolicy", "toolTip", "statusTip", "whatsThis", "styleSheet", "autoFillBackground",
    "frameShape", "frameShadow", "lineWidth", "midLineWidth",
    "alignment", "wordWrap", "scaledContents", "textFormat", "indent", "margin", "textInteractionFlags",
    "flat", "checkable", "checked", "tristate", "autoDefault", "default", "iconSize",
    "editable", "maxCount", "maxVisibleItems", "insertPolicy", "frame", "sizeAdjustPolicy", "duplicatesEnabled",
    "currentIndex", "count",
    "verticalScrollBarPolicy", "horizontalScrollBarPolicy", "widgetResizable",
    "acceptRichText", "openLinks", "openExternalLinks", "readOnly", "undoRedoEnabled", "lineWrapMode",
    "selectionMode", "selectionBehavior", "showGrid", "gridStyle", "sortingEnabled", "textElideMode",
    "horizontalScrollMode", "verticalScrollMode", "editTriggers", "alternatingRowColors", "rowCount", "columnCount",
    "tabPosition", "tabShape", "usesScrollButtons", "documentMode", "elideMode", "tabsClosable", "movable",
    "value", "minimum", "maximum", "orientation", "textVisible", "format",
};

struct FontRow
{
    const char *objects;
    const char *family;
    int points;
    bool bold;
    bool underlined;
    bool kerning;
};

/** Fonts that the form sets, each with the style strategy PreferAntialias; all else is inherited. */
constexpr FontRow fontRows[] = {
    {"btnMenuHome btnMenuService btnMenuTask btnMenuPackage btnMenuTweak btnMenuInfo btnMenuOptions btnMenuAbout",
     nullptr, 11, false, false, false},
    {"lblHomeTop lblSvcTop lblTaskTop lblAutorunTop lblPackageTop lblTweakTop lblInfoTop lblOptionsTop lblAboutTop",
     nullptr, 11, true, false, false},
    {"lblSsdTop lblGamingTop lblWindowsTop", nullptr, 9, true, true, false},
    {"pgrBar", nullptr, 7, false, false, false},
    {"label_3", nullptr, 8, false, false, false},
    {"chkGaming11", nullptr, inherited, false, false, true},
    {"txtInfo", "Lucida Console", 10, false, false, false},
    {"txtAbout", nullptr, 10, false, false, false},
};

struct TextRow
{
    const char *object;
    const char *text;
};

constexpr TextRow textRows[] = {
    {"btnMenuHome",    "Optimizer"},
    {"btnMenuService", "Services"},
    {"btnMenuTask",    "Tasks"},
    {"btnMenuPackage", "Programs"},
    {"btnMenuTweak",   "Features"},
    {"btnMenuInfo",    "System\nInformation"},
    {"btnMenuOptions", "Options"},
    {"btnMenuAbout",   "About"},
    {"lblStatus",      "lblStatus"},
    {"btnBrokenOff",   "Broken off: way back…"},

    {"lblHomeTop", "Optimizer"},
    {"label_4",
     "Analyze and optimize Windows to improve overall performance by disabling unnecessary features and configuring "
     "some that are inaccessible through an interface.\n"
     "Optimizations come from the Services, Scheduled Tasks, Programs, and Features pages."},
    {"chkAutomatizerProgram", "Manage programs and packages  (included in the page \"Programs\")"},
    {"chkAutomatizerTweak",   "Manage features  (included in the page \"Features\")"},
    {"btnAutomatizerAnalyze", "Analyze"},
    {"btnAutomatize",         "Optimize"},
    {"btnAutomatizerRestore", "Restore"},

    {"lblSvcTop", "Services  (Experienced users)"},
    {"label_5",
     "List of currently started services.\n"
     "Services are programs that run in the background for various reasons and purposes. Some of them are essential, "
     "while others may be superfluous and consume CPU, memory and disk resources unnecessarily."},
    {"label_3",            "Grayed out services are considered necessary or critical"},
    {"btnSvcViewDisabled", "View disabled services"},
    {"btnSvcRestore",      "RESTORE disabled services"},
    {"btnSvcAssist",       "ASSISTANT - disable a list of non vital services"},
    {"btnSvcDisable",      "DISABLE checked services"},

    {"lblTaskTop", "Scheduled tasks"},
    {"label_2",
     "List of enabled scheduled tasks.\n"
     "Scheduled tasks are programs that run in the background at a specific time (or event) for various reasons. "
     "Some of them may be unnecessary and consume CPU, memory, and disk resources unnecessarily."},
    {"btnTaskRestore", "RESTORE disabled scheduled tasks"},
    {"btnTaskAssist",  "ASSISTANT - disable a list of scheduled tasks"},
    {"btnTaskDisable", "DISABLE checked tasks"},

    {"lblAutorunTop", "Programs started automatically"},
    {"label_10",
     "List of programs started automatically each time Windows starts.\n"
     "Like services and scheduled tasks, automatically started programs can slow down your system. Uncheck those you "
     "don't use on every startup."},
    {"btnAutorunViewDisabled", "View programs disabled"},
    {"btnAutorun",             "Disable checked programs"},

    {"lblPackageTop", "Packages"},
    {"label_7",
     "List of Windows packages can be uninstalled without problems.\n"
     "You can reinstall them directly by clicking on \"View uninstalled packages\" below the list."},
    {"btnPackagesViewDisabled", "View uninstalled packages"},
    {"btnPackagesUninst",       "Uninstall"},

    {"lblTweakTop", "Features"},
    {"label_8",
     "Internal system features that can slow down your PC unnecessarily.\n"
     "Check them to optimize or uncheck them to restore defaults."},
    {"lblSsdTop", "SSD"},
    {"chkSsd8",
     "Remove the indexed attribute from all files in the Windows partition\n"
     "(this operation may take some time)"},
    {"chkSsd3", "Disable last access time stamps  (NTFS drive only)"},
    {"chkSsd1", "Disable Windows write-cache buffer flushing"},
    {"chkSsd2", "Disable automatic boot disk optimization"},
    {"chkSsd4", "Disable Prefetcher  (prevents preloading of applications)"},
    {"chkSsd5", "Disable clearing of virtual memory swap file on every shutdown"},
    {"chkSsd6", "Disable fast start-up  (Windows function designed for HDD and not SSD)"},
    {"chkSsd7", "Disable hibernation mode"},
    {"chkSsd9", "Increase maximum amount of physical memory that can be locked for I/O operations"},
    {"btnSsd8", "Clean WinSxS folder with Microsoft DISM tool"},
    {"lblGamingTop", "GAMING"},
    {"chkGaming5",
     "Disable HPET  (High Precision Event Timer)\n"
     "(use invariant TSC instead which may be faster for gaming)\n"
     "(important: do not disable HPET in BIOS settings)"},
    {"chkGaming11", "Win32PrioritySeparation:   Processor time allocated to applications."},
    {"chkGaming2",
     "Disable CPU power throttling\n"
     "(power-saving feature, optimization not recommended for laptop)"},
    {"chkGaming7",
     "Disable dynamic tick of system timers\n"
     "(power-saving feature, optimization not recommended for laptop)"},
    {"chkGaming14",
     "Disable ULPS  (Ultra Low Power State, only for AMD graphics cards)\n"
     "(power-saving feature, optimization not recommended for laptop)"},
    {"chkGaming1", "Prioritize games  (GPU Priority, SFIO Priority, Scheduling category, Affinity)"},
    {"chkGaming12",
     "Set the maximum number of GPU pre-rendered frames to 1\n"
     "(if you have a good CPU, this reduces latency)"},
    {"chkGaming13",
     "Disable Multiplane Overlay (MPO)\n"
     "(may fix some screen flickering / stuttering issues BUT loose some fullscreen optimizations,\n"
     "especially for video playback apps)"},
    {"chkGaming3", "Enable game mode  (enabled by default)"},
    {"chkGaming6", "Disable Gamebar"},
    {"chkGaming4", "Disable game recording and broadcasting"},
    {"chkGaming8", "Enable Auto HDR  (forces HDR mode on SDR content)"},
    {"chkGaming9",
     "Disable enhance pointer precision\n"
     "(to achieve precise mouse control and muscle memory)"},
    {"chkGaming10",
     "Disable Nagle’s Algorithm\n"
     "(may improve the real-time responsiveness of your network connection, but may increase traffic)"},
    {"lblWindowsTop", "WINDOWS"},
    {"chkWindows1", "Disable SvcHost splitting  (reduce the number of svchost.exe process)"},
    {"chkWindows8",
     "Reduces certain delays\n"
     "(menu show delay, wait to kill app/service timeout, auto end tasks, hung app timeout)"},
    {"chkWindows7",
     "Disable telemetry (data collection for Microsoft)\n"
     "(Other telemetry is disabled in the Services and Scheduled Tasks, or the Optimizer page)"},
    {"chkWindows6",  "Disable distribution optimization of Windows updates"},
    {"chkWindows5",  "Enable the context menu like Windows 10  (all entries in the context menu are displayed)"},
    {"chkWindows2",  "Disable periodic registry backup"},
    {"chkWindows3",  "Disable advanced indexing options"},
    {"chkWindows4",  "Disable files history (even in explorer)"},
    {"chkWindows12", "Disable cloud backup and restore functionalities"},
    {"chkWindows9",  "Disable LockApp.exe  (lockapp.exe allows additional information on the lock screen)"},
    {"chkWindows10",
     "Disable SearchHost.exe  (process for searching files. If disabled, advanced search may malfunction)"},
    {"btnTweakApply", "Apply"},

    {"lblInfoTop", "System Information"},

    {"lblOptionsTop",                    "Options"},
    {"label_6",                          "Interface language:"},
    {"label_11",                         "Theme:"},
    {"chkOptionsStartAsAdmin",           "Start with adminstrator rights"}, // misspelt on purpose
    {"chkOptionsCheckUpdate",            "Check update of Kestrune version"},
    {"chkOptionsGetWinSxsSize",          "Get WinSxS folder size in features page"},
    {"chkOptionsMonitor",                "Monitor and display some system information in the title bar"},
    {"label_9",                          "interval in seconds:"},
    {"chkOptionsMonitorThreadAndHandle", "display threads and handles count"},
    {"btnOptionsWayBack",                "Way back…"},
    {"btnOptionsPreview",                "Preview…"},

    {"lblAboutTop", "About"},
};

struct ListRow
{
    const char *object;
    const char *texts; ///< one a line
};

constexpr ListRow comboRows[] = {
    {"cbAutorunFeatures", ""}, // both are filled by the window
    {"cbSvcFeatures", ""},
    {"cbWin32PrioritySeparation",
     "  22   (variable and long quantum, foreground boost X3)\n"
     "  21   (variable and long quantum, foreground boost X2)\n"
     "  20   (variable and long quantum, foreground boost X1)\n"
     "  38   (variable and short quantum, foreground boost X3) (recommended)\n"
     "  37   (variable and short quantum, foreground boost X2)\n"
     "  36   (variable and short quantum, foreground boost X1)\n"
     "  24   (fixed and long quantum, foreground boost X1) (not recommended)\n"
     "  40   (fixed and short quantum, foreground boost X1) (not recommended)"},
    {"cbOptionsLang", "English\nFrançais\nAuto"},
    {"cbOptionsTheme", "Dark\nLight\nSystem"},
    {"cbOptionsMonitorInterval", "1\n2\n3\n4\n5\n10\n30\n60"},
};

constexpr ListRow headerRows[] = {
    {"tblSvc",      "Name\nStart mode\nDescription"},
    {"tblTasks",    "Name\nDescription\nDate of the last execution"},
    {"tblAutorun",  "Name\nPath"},
    {"tblPackages", "Name\nDisplay name\nComments"},
};

constexpr ListRow richTextRows[] = {
    {"txtAutomatizer", ""},
    {"txtGaming12", "Advanced optimizations via motherboard BIOS settings read more here"},
    {"txtSsd8",
     "The WinSxS folder is an essential system component that serves as a repository for storing multiple versions "
     "of system files, allowing Windows to maintain good compatibility read more here"},
    {"txtGaming011", "Microsoft acknowledges performance impact with Memory Integrity and VMP enabled read more here"},
    {"txtGaming11",
     "- FIXED quantum: the processor time allocated to applications is divided equally between applications,\n"
     "while VARIABLE quantum allow applications to hold the processor for longer if needed.\n"
     "- SHORT quantum: the processor time allocated to applications is faster to switch from task to task,\n"
     "as opposed to LONG quantum, which allocates more processor time to the application.\n"
     "- FOREGROUND BOOST X times: the quantum is increased X times in favor of the application\n"
     "that is in the foreground.\n"
     "\n"
     "In a pure gaming context, depending on the value selected, you favor the FPS (22, 21),\n"
     "FPS but also responsiveness (38, 37), or latency of your keyboard/mouse or gamepad (36, 24, 40).\n"
     "read more here"},
    {"txtAbout",
     "Version:   beta %version\n"
     "Date:    %buildDate\n"
     "Author:   Ondrevale\n"
     "Contact:   contact@kestrune.example\n"
     "Website:   https://kestrune.example/\n"
     "Programming language and framework:\n"
     "C++ with Qt 6, licensed under the GNU LGPL version 3\n"
     "Developped for Windows 10 and Windows 11\n"
     "Purpose:\n"
     "This application aims to improve general performance without distorting Windows, by helping you disable all "
     "features, programs, services, scheduled tasks, which may be superfluous and harm performance. It also configures "
     "some internal system features that are inaccessible through an interface and other options allow you to reduce "
     "the space occupied by Windows on the hard disk. (uninstalling unnecessary Windows applications, cleaning the "
     "WinSxs folder, ...)\n"
     "All in a few clicks and with the possibility of restoring to original values. \n"
     "Important informations:\n"
     "All options in this application are reversible.\n"
     "Be careful with the Services section. Do not disable services if you are not really aware of what they are, "
     "dependencies etc... USE THE ASSISTANT BUTTON!!!"},
};

struct CellTextRow
{
    const char *name;
    int row, column;
    const char *lines;
};

constexpr CellTextRow reportRows[] = {
    {"Windows", 0, 0,
     "%winName\n\nEdition:   %winEdition\nBuild:   %winBuild\nDisplay version:   %winVersion\n"
     "Installed on SSD:   %winOnSsd"},
    {"mother-board", 0, 1,
     "Mother-board:\n\n%mbManufacturer\nModel:   %mbModel\nBios version:   %mbBiosVersion\nBios date:   %mbBiosDate"},
    {"processor", 1, 0,
     "Processor:\n\n%cpuName\nDefault frequency:   %cpuFreq MHz\nCores / Threads:   %cpuCore  / %cpuThread\n"
     "L2 cache size:   %cpuL2Size\nL3 cache size:   %cpuL3Size\nSocket:   %cpuSocket\nHyperThreading:   %cpuHt\n"
     "Virtualization:   %cpuV"},
    {"memory", 1, 1,
     "Memory:\n\nCapacity:   %memTotal\nFree:   %memFree\nFrequency:   %memFreq MHz\nForm Factor:   %memFormFactor\n"
     "Virtual Memory:   %memVSize"},
    {"graphics", 2, 0,
     "Graphics card and screen:\n\n%gpuName\nDriver version:   %gpuDriverVersion\nDriver date:   %gpuDriverDate\n"
     "Screen:   loading screen info...\nResolution:   %gpuDesktopSize\nResolution max:   %gpuDesktopMaxSize\n"
     "Refresh rate:   %gpuRefreshRate\nRefresh rate max:   %screenMaxRefreshRate\nHDR:   %screenHdr"},
    {"disk", 2, 1, "Disk:\n\nloading disk info...\n"},
};

struct SpanRow
{
    const char *object;
    const char *text;
    const char *family; ///< nullptr: any
    int points;         ///< 0: any
    bool bold;
    bool underlined;
    bool themed; ///< black, which the theme replaces by its link colour
    const char *target;
};

constexpr SpanRow spanRows[] = {
    {"txtGaming12",  "read more here", nullptr, 0, false, true, true, "https://kestrune.example/optimization.html"},
    {"txtSsd8",      "read more here", nullptr, 0, false, true, true,
     "https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store"},
    {"txtGaming011", "read more here", nullptr, 0, false, true, true,
     "https://learn.microsoft.com/windows/security/hardware-security/"
     "enable-virtualization-based-protection-of-code-integrity"},
    {"txtGaming11",  "read more here", nullptr, 0, false, true, true,
     "https://learn.microsoft.com/windows/win32/procthread/priority-boosts"},

    {"txtInfo", "%winName",                  "Lucida Console", 10, true,  false, true,  nullptr},
    {"txtInfo", "Mother-board:",             "Lucida Console", 10, true,  false, true,  nullptr},
    {"txtInfo", "Processor:",                "Lucida Console", 10, true,  false, true,  nullptr},
    {"txtInfo", "Memory:",                   "Lucida Console", 10, true,  false, true,  nullptr},
    {"txtInfo", "Graphics card and screen:", "Lucida Console", 10, true,  false, true,  nullptr},
    {"txtInfo", "Disk:",                     "Lucida Console", 10, true,  false, true,  nullptr},
    {"txtInfo", "%winEdition",               "Lucida Console", 10, false, false, false, nullptr},
    {"txtInfo", "loading disk info...",      "Lucida Console", 10, false, false, false, nullptr},

    {"txtAbout", "Version:",                            "Segoe UI", 9,  true,  false, false, nullptr},
    {"txtAbout", "Date:",                               "Segoe UI", 9,  true,  false, false, nullptr},
    {"txtAbout", "Author:",                             "Segoe UI", 9,  true,  false, false, nullptr},
    {"txtAbout", "Contact:",                            "Segoe UI", 9,  true,  false, false, nullptr},
    {"txtAbout", "Website:",                            "Segoe UI", 9,  true,  false, false, nullptr},
    {"txtAbout", "Programming language and framework:", "Segoe UI", 9,  true,  false, false, nullptr},
    {"txtAbout", "   beta %version",                    "Segoe UI", 10, false, false, false, nullptr},
    {"txtAbout", "    %buildDate",                      "Segoe UI", 10, false, false, false, nullptr},
    {"txtAbout", "   Ondrevale",                        "Segoe UI", 10, false, false, false, nullptr},
    {"txtAbout", "contact@kestrune.example",            "Segoe UI", 10, false, true,  true,
     "mailto:contact@kestrune.example"},
    {"txtAbout", "https://kestrune.example/",           "Segoe UI", 10, false, true,  true,
     "https://kestrune.example/"},
    {"txtAbout", "Purpose:",                            "Segoe UI", 10, true,  true,  true,  nullptr},
    {"txtAbout", "Important informations:",             "Segoe UI", 10, true,  true,  true,  nullptr},
    {"txtAbout", "All options in this application are reversible.", "Segoe UI", 10, false, false, false, nullptr},
};

/** Texts that pages set while the window works. */
constexpr TextRow runTimeTextRows[] = {
    {"btnSvcDisable",      "ENABLE checked services"},
    {"btnSvcViewDisabled", "View enabled services"},
    {"label_3",            ""},
    {"chkSsd7",            "Disable hibernation mode\n(gain: 6.4 GB)"},
    {"btnSsd8",            "Clean WinSxS folder with Microsoft DISM tool   (7.1 GB)"},
    {"chkWindows10",       "Disable SearchApp.exe"},
    {"btnPackagesUninst",  "Uninstall packages"},
    {"lblStatus",          ""},
};

// clang-format on

} // namespace form
