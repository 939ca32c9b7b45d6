// SPDX-License-Identifier: GPL-3.0-or-later
// The main window.

#pragma once

#include "previewrun.h"
#include "ui_kestrune.h"
#include "work/workthread.h"

#include <QColor>
#include <QMainWindow>
#include <QPalette>
#include <QSet>
#include <QTextBrowser>

class QNetworkAccessManager;
class QNetworkReply;
class QStandardItemModel;
class QTimer;
struct TweakBox;

/** The check list of both Keep boxes: what the Automatizer leaves alone. Made before main() and never deleted. */
extern QStandardItemModel *const keepModel;

/** Pixels as they are at the usual size of texts, grown to the size that the user wants. */
int grown(int pixels);
QSize grown(const QSize &size);
/** The size of a window, grown likewise, but not beyond the screen. */
QSize grownWindow(const QSize &size);

class Kestrune : public QMainWindow
{
    Q_OBJECT

public:
    Kestrune();
    ~Kestrune() override;

    QString appVersion;                         ///< set once the window stands
    QString screenName;                         ///< likewise
    PreviewPlace (*previewPlace)() = nullptr;   ///< likewise; what a preview of Optimize is made of
    QString currentLang = QStringLiteral("en"); ///< tag of the language in force

    /** Number of the page that is shown, 0 to 8. */
    int currentPage() const { return ui.tabWidget->currentIndex(); }
    /** The one way to a page: shows it and brings it up to date. Does nothing while a job runs. */
    void showPage(int page);

    // What a change of language or theme leaves behind, and what runs again after each. May run at any time.
    /** Puts the tables' columns and the context menus right, and hides what the pages show in their own time. */
    void prepareForm();
    /** Fills both Keep lists anew with the stored states. */
    void buildKeepList();
    /** Lets the Keep lists open as wide as their widest row. To be called when their styles are set. */
    void widenKeepLists();
    /** Does both, and puts the stored theme in force. */
    void applyPalette();

    /**
     * Lets the page scroll where the screen is smaller than the form, so that nothing lies below it; elsewhere it does
     * nothing. To be called once.
     * @param available what the screen has for windows, with their frames
     */
    void fitToScreen(const QSize &available);

    /** Opens the dialog of the way back for all that was ever noted. */
    void showWayBack();

    /** Ends the program in favour of an elevated instance, also while the window is still being built. */
    void leave();
    /** True when the program has ended itself: the window isn't to be shown any more. */
    bool hasLeft() const { return left_; }

public Q_SLOTS:
    void StartAsAdmin();
    void onWorkThreadValueChanged(const QString &line);
    void onWorkThreadValueMonitor(const QString &line);
    void onWorkThreadValueWinSxs(const QString &line);
    void onAutomatizerValueChanged(const QString &line);

private Q_SLOTS:
    // Menu
    void on_btnMenuHome_clicked() { showPage(0); }
    void on_btnMenuService_clicked() { showPage(1); }
    void on_btnMenuTask_clicked() { showPage(2); }
    void on_btnMenuPackage_clicked();
    void on_btnMenuTweak_clicked() { showPage(5); }
    void on_btnMenuInfo_clicked() { showPage(6); }
    void on_btnMenuOptions_clicked() { showPage(7); }
    void on_btnMenuAbout_clicked() { showPage(8); }

    // Optimizer page
    void on_btnAutomatizerAnalyze_clicked();
    void on_btnAutomatize_clicked();
    void on_btnAutomatizerRestore_clicked();

    // Services page
    void on_btnSvcDisable_clicked();
    void on_btnSvcAssist_clicked();
    void on_btnSvcRestore_clicked();
    void on_btnSvcViewDisabled_clicked();

    // Tasks page
    void on_btnTaskDisable_clicked();
    void on_btnTaskAssist_clicked();
    void on_btnTaskRestore_clicked();

    // Pages of programs
    void on_btnAutorun_clicked();
    void on_btnAutorunViewDisabled_clicked();
    void on_btnPackagesUninst_clicked();
    void on_btnPackagesViewDisabled_clicked();

    // Options page: the monitor
    void onChkOptionsMonitorStateChanged(int state);
    void onCbOptionsMonitorIntervalSelectionChanged(int index);
    void onChkOptionsMonitorThreadAndHandleStateChanged(int state);

    // Features page
    void on_btnTweakApply_clicked();
    void on_btnSsd8_clicked();
    void markTweak();
    void oncbWin32PrioritySeparationIndexChanged();

    // Context menu of the lists
    void showContextMenu();
    void refreshPage();
    void uncheckAll();
    void checkAll();
    void setServiceManualStart();
    void setServiceAutomaticStart();

    // Options page
    void onCbOptionsLangSelectionChanged(int index);
    void onCbOptionsThemeSelectionChanged(int index);
    void onChkOptionsStartAsAdminStateChanged(int state);
    void onChkOptionsCheckUpdateStateChanged(int state);
    void onChkOptionsGetWinSxsSizeStateChanged(int state);
    void onCheckUpdateResult(QNetworkReply *reply);

    // The way back, and the look ahead
    void on_btnOptionsWayBack_clicked() { openWayBack(0); }
    void on_btnOptionsPreview_clicked();
    void on_btnBrokenOff_clicked();

    /** The closed lists show their title, which the wheel and the keys would leave for a feature. */
    void showKeepTitle(int index);
    void onKeepModelChanged(const QModelIndex &first, const QModelIndex &last);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    /** A row of cbOptionsLang; Auto is the language of the system, as far as there is a file for it. */
    enum LanguageChoice : int { English = 0, French = 1, Auto = 2 };
    /** The theme in force; there is no 2. */
    enum Theme : int { DarkTheme = 0, LightTheme = 1, SystemTheme = 3 };

    /** A list's columns as the form has them, and which of them takes the room that a wide window has. */
    struct Columns
    {
        QTableWidget *table;
        QList<int> widths;
        int growing;
    };

    // Start-up
    void makeWorkers();
    /** A cursor says that a job runs. */
    void showWhetherBusy();
    void makeWinSxsWorker();
    /** Ends the count of the WinSxS folder; one that doesn't answer is left alone, and the next has a new worker. */
    void endWinSxsCount();
    /** Waits until the job whose closing line has come is over, so that the next one can start. */
    void waitForLastInstructions();
    void onKeepItemChanged(int firstRow, int lastRow);

    // Navigation
    QList<Columns> listColumns() const;
    /** Gives each list's growing column what the others leave of its width, but never less than the form. */
    void growColumns();
    /** Tool tips that say what can't be seen before a click, and which keys do the same. */
    void explainButtons();
    void openPage(int page);
    /** The object name of the menu's button for a page. */
    static QString pageButton(int page);
    /** The keys that lead to a page. */
    static QList<QKeySequence> pageKeys(int page);
    /** Makes the first row of a list its current one that can be; gives false where there is none. */
    static bool beginAtFirstRow(QTableWidget *table);
    void selectMenuButton(const QString &objectName);
    void styleMenuButton(const QString &objectName);
    void applyActiveMenuStyle(QPushButton *button, const QString &imageName);
    /** Marks the button of a page, whose image suits the theme. */
    void markActiveMenuButton(int page);
    /** Whether the menu's images are the white ones. */
    bool hasWhiteImages() const;

    // Keyboard and screen readers
    void makeShortcuts();
    /** The list of the page that is shown; null on pages without one. */
    QTableWidget *pageTable() const;
    /** What can be reached by the keyboard on the page that is shown: its list first, the rest as it lies there. */
    QList<QWidget *> pageControls() const;
    void giveKeyboardTo(QWidget *control);
    /** Gives the keyboard to the page's next control, or the one before; to the first or last where none has it. */
    void moveKeyboard(int step);
    void clickMainButton();
    /** Names for screen readers where a control doesn't say by itself what it is. */
    void nameControls();

    // Size of texts
    /** Lets fonts and what they have to fit in grow as the user wants. To be called once. */
    void growForm();
    /** Lets the form's rich texts grow, after each time that they were set. */
    void growRichTexts();

    // Theme
    /** Puts the stored theme in force, or that of the system where the system's is one of contrast. */
    void wearTheme();
    /** The system has changed how it looks. */
    void followSystem();
    void applyLightTheme();
    void applyDarkTheme();
    void applySystemTheme();
    /** The system's palette, and no style sheet on the pages. */
    void wearSystemLook();
    bool isViewButton(const QPushButton *button) const;
    void styleButtons(const QString &viewStyle, const QString &actionStyle, bool flat);
    void styleTables(const QString &style);
    template<typename Widget>
    void styleAll(const QString &style);
    void styleComboBoxes(const QString &style, const QString &listStyle);
    void colorTexts();
    /** Gives the text's coloured words the theme's colour. */
    void colorText(QTextBrowser *browser);

    /** Keeps other instances from changing the PC; says so and gives false where one is at work. */
    bool lockOthersOut();
    /** Lets them in again, when the job that was started last is over. */
    void letOthersIn();

    // Optimizer page
    void takeAutomatizerBoxes();
    bool hasFindings() const;
    void onAutomatizerProgressLine(const QString &line);
    void closeAnalyze();
    void logImprovements();
    void closeTweaks();
    void startAttributeWalk();
    void closeWithoutAttributeWalk();
    void closeAttributeWalk();
    void fillBar();
    void logAndShow(const QString &text);
    /** Adds a line to the log, as text: a line may hold names of the system, which look like whatever they do. */
    void appendToLog(const QString &line);

    // Services page
    void showServicesPage();
    void onServiceJobLine(QString &line);
    void fillServiceTable();
    void setServiceRow(int index, const ServiceRow &row, int greyed);
    void setServiceView(bool disabledView);
    void restoreRecordedServices();
    void setServiceStart(const QString &argument);

    // Tasks page
    void showTasksPage();
    void onTaskJobLine(const QString &line);
    void fillTaskTable();
    void setTaskRow(int index, const TaskRow &row);
    void disableCheckedTasks();

    // Autorun page
    void showAutorunPage();
    void fillAutorunTable();
    void switchCheckedAutoruns();

    // Packages page
    void showPackagesPage();
    void onPackageJobLine(const QString &line);
    void fillPackageTable();
    void addPackageRows(const QList<PackageRow> &packages);

    // System information page
    void showInfoPage();
    void onInfoJobLine(QString &line);
    /** Pours the texts of the job into the template. */
    void showSystemReport();

    // Monitor
    /** Reads the monitor's options, and starts it where it is on. */
    void prepareMonitor();
    void startMonitor();
    /** The timer's tick: one run, unless the last one still lasts. */
    void runMonitor();

    // Features page
    void showFeaturesPage();
    void explainTweaks();
    void showHibernationGain();
    QCheckBox *checkBoxOf(const TweakBox &box) const;
    void loadTweakState();
    void saveTweakState() const;
    void connectTweakMarks();
    void applyTouchedTweaks();
    void offerAttributeWalk();
    void onAttributeWalkEnd();
    void lookAtGraphicsCard();

    // Options and About page
    void startLanguage();
    /** Installs the language's file; only if that can be read, the choice is stored. */
    void speak(const QString &tag, const QString &stored);
    /** Speaks what the box's row stands for. */
    void speakChosen(int index);
    /** Sets all texts of the form in the language spoken, and all that goes by them. */
    void sayAllAnew();
    void showOptionsPage();
    void loadTheme();
    void loadLanguage();
    /** Sets the box from its key without a call of the slot, which is connected from then on. */
    void loadCheckBox(QCheckBox *box, const QString &key, int fallback, void (Kestrune::*slot)(int));
    void loadComboBox(QComboBox *box, int index, void (Kestrune::*slot)(int));
    void showAboutPage();
    void nameHost();
    void checkUpdate();

    // The way back
    /**
     * Opens the dialog at a session of the journal, by its number; at the last one with 0.
     * @param withLater all sessions after it are chosen, too
     */
    void openWayBack(qint64 session, bool withLater = false);
    /** Shows the button of the status strip where a session was broken off that nobody has looked at. */
    void showBrokenOff();
    /** Says once why changes weren't made that the system itself wouldn't have refused; nothing where all were. */
    void tellFailure();

    Ui::KestruneClass ui;
    WorkThread *workThread = nullptr;
    WorkThread *workThreadWinSxs = nullptr;
    WorkThread *workThreadMonitor = nullptr;
    QTimer *monitorTimer = nullptr;
    QString toldFailure;
    QNetworkAccessManager *updateManager = nullptr; ///< of the last check
    QString infoTemplate;                           ///< the report with its marks, once there has been one
    QPalette startPalette;                          ///< the system's own palette, as it was last seen
    QColor previousLinkColor;                       ///< of the theme before the present one
    Theme currentTheme = DarkTheme;
    bool hasContrastTheme_ = false; ///< what the system had when the theme was last put in force
    int svcDisabledCount = 0;
    int svcStartedCount = 0;
    int svcStoppedCount = 0;
    int taskEnabledCount = 0;
    int taskDisabledCount = 0;
    /** Boxes of tweaks that were ever changed since the page was first shown; none is taken out again. */
    QSet<const QCheckBox *> touchedBoxes;
    std::shared_ptr<void> othersLock; ///< there during Optimize, Restore and Apply
    bool left_ = false;
};
