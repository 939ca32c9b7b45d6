// SPDX-License-Identifier: GPL-3.0-or-later

#include "waybackdialog.h"

#include "elevation.h"
#include "journal/takeback.h"
#include "kestrune.h"
#include "machine/machineerror.h"
#include "messagebox.h"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

enum SessionColumn { When, What, Changes, State, SessionColumnCount };
constexpr int idRole = Qt::UserRole;
constexpr int windowsRole = Qt::UserRole + 1; // the build number

/** What it was, and who ran it where that was somebody else: his records of it aren't the user's. */
QString titleOf(const Session &session, const QString &user)
{
    const QString what = translatedText(session.what);
    if (session.user.isEmpty() || session.user == user)
        return what;
    const bool isOfSystem = session.user == "S-1-5-18"_L1 || session.user == "SYSTEM"_L1;
    return (isOfSystem ? Kestrune::tr("%1 (by the system)") : Kestrune::tr("%1 (by another account)")).arg(what);
}

QTreeWidgetItem *rowOf(const Session &session, const QString &user)
{
    auto *row = new QTreeWidgetItem;
    row->setText(When, QLocale().toString(session.begun, QLocale::ShortFormat));
    row->setText(What, titleOf(session, user));
    if (const QString page = pageOfSession(session.what); !page.isEmpty())
        row->setToolTip(What, Kestrune::tr("Page: %1").arg(translatedText(page)));
    row->setText(Changes, QString::number(session.changes));
    row->setTextAlignment(Changes, Qt::AlignRight | Qt::AlignVCenter);
    row->setText(State, sessionStateText(session.state));
    row->setData(When, idRole, session.id);
    row->setData(When, windowsRole, session.windows);
    return row;
}

/** Text on the left, what belongs to it on the right. */
QHBoxLayout *line(std::initializer_list<QWidget *> widgets)
{
    auto *layout = new QHBoxLayout;
    for (QWidget *widget : widgets)
        layout->addWidget(widget);
    return layout;
}

QPushButton *newButton(const QString &name, const QString &text)
{
    auto *button = new QPushButton(text);
    button->setObjectName(name);
    button->setAutoDefault(false); // Enter in the search is none of it
    return button;
}

void prepareList(QTreeView *list, const QString &name)
{
    list->setObjectName(name);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAllColumnsShowFocus(true);
}

} // namespace

WayBackDialog::WayBackDialog(const Journal &journal, qint64 session, bool withLater, QWidget *parent)
    : QDialog(parent)
    , journal_(journal)
    , model_(new WayBackModel(this))
    , shown_(new QSortFilterProxyModel(this))
    , work_(new WayBackWork(journal, this))
{
    shown_->setSourceModel(model_);
    shown_->setFilterCaseSensitivity(Qt::CaseInsensitive);
    shown_->setFilterKeyColumn(-1); // in all columns
    makeWidgets();
    layOut();
    later_->setChecked(withLater);
    connectWidgets();
    listSessions(session);
    look();
}

WayBackDialog::~WayBackDialog()
{
    constexpr int patience = 2000;

    disconnect(work_, nullptr, this, nullptr);
    work_->requestInterruption();
    // A thread that can't be ended is abandoned: deleting it would end the process the hard way.
    if (!work_->wait(patience))
        work_->setParent(nullptr);
}

void WayBackDialog::makeWidgets()
{
    sessions_ = new QTreeWidget;
    prepareList(sessions_, u"lstSessions"_s);
    sessions_->setHeaderLabels(
        {Kestrune::tr("When"), Kestrune::tr("What"), Kestrune::tr("Changes"), Kestrune::tr("State")});
    sessions_->setAccessibleName(Kestrune::tr("Sessions"));
    sessions_->header()->setStretchLastSection(false);
    later_ = new QCheckBox(Kestrune::tr("With all &later changes"));
    later_->setObjectName(u"chkLater"_s);
    search_ = new QLineEdit;
    search_->setObjectName(u"edtSearch"_s);
    search_->setClearButtonEnabled(true);
    search_->findChild<QToolButton *>()->setAccessibleName(Kestrune::tr("Clear the search"));
    changes_ = new QTreeView;
    prepareList(changes_, u"lstChanges"_s);
    changes_->setModel(shown_);
    changes_->setAccessibleName(Kestrune::tr("Changes"));
    checkAll_ = newButton(u"btnCheckAll"_s, Kestrune::tr("Check all"));
    uncheckAll_ = newButton(u"btnUncheckAll"_s, Kestrune::tr("Uncheck all"));
    status_ = new QLabel;
    status_->setObjectName(u"lblWayBack"_s);
    status_->setTextFormat(Qt::PlainText);
    bar_ = new QProgressBar;
    bar_->setObjectName(u"pgrWayBack"_s);
    bar_->setAccessibleName(Kestrune::tr("Taking back…"));
    bar_->hide();
    take_ = newButton(u"btnTakeBack"_s, Kestrune::tr("&Take back"));
    save_ = newButton(u"btnSaveFiles"_s, Kestrune::tr("Sa&ve as files…"));
    close_ = newButton(u"btnClose"_s, Kestrune::tr("Close"));
}

void WayBackDialog::layOut()
{
    setWindowTitle(Kestrune::tr("Way back"));
    auto *sessionsLabel = new QLabel(Kestrune::tr("&Sessions:"));
    sessionsLabel->setBuddy(sessions_);
    auto *searchLabel = new QLabel(Kestrune::tr("S&earch:"));
    searchLabel->setBuddy(search_);

    auto *left = new QWidget;
    auto *leftLayout = new QVBoxLayout(left);
    leftLayout->setContentsMargins({});
    leftLayout->addWidget(sessionsLabel);
    leftLayout->addWidget(sessions_);
    leftLayout->addWidget(later_);
    auto *right = new QWidget;
    auto *rightLayout = new QVBoxLayout(right);
    rightLayout->setContentsMargins({});
    rightLayout->addLayout(line({searchLabel, search_}));
    rightLayout->addWidget(changes_);
    auto *checks = line({checkAll_, uncheckAll_});
    checks->addStretch();
    rightLayout->addLayout(checks);

    auto *sides = new QSplitter;
    sides->setChildrenCollapsible(false);
    sides->addWidget(left);
    sides->addWidget(right);
    sides->setStretchFactor(1, 1);
    sides->setSizes({grown(360), grown(620)});
    auto *buttons = line({status_, bar_, take_, save_, close_});
    buttons->setStretch(0, 1);
    auto *all = new QVBoxLayout(this);
    all->addWidget(sides, 1);
    all->addLayout(buttons);

    const QList<QWidget *> order{sessions_, later_, search_, changes_, checkAll_, uncheckAll_, take_, save_, close_};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order.at(i - 1), order.at(i));
    QHeaderView *header = changes_->header();
    const int widths[] = {250, 100, 100};
    for (int column = 0; column < static_cast<int>(std::size(widths)); ++column)
        header->resizeSection(column, std::max(grown(widths[column]), header->sectionSizeHint(column)));
    resize(grownWindow({1000, 560}));
}

void WayBackDialog::connectWidgets()
{
    connect(sessions_, &QTreeWidget::currentItemChanged, this, &WayBackDialog::look);
    connect(later_, &QCheckBox::toggled, this, &WayBackDialog::look);
    connect(search_, &QLineEdit::textChanged, shown_, &QSortFilterProxyModel::setFilterFixedString);
    connect(checkAll_, &QPushButton::clicked, this, [this] { checkAll(true); });
    connect(uncheckAll_, &QPushButton::clicked, this, [this] { checkAll(false); });
    connect(model_, &WayBackModel::checksChanged, this, &WayBackDialog::allowTaking);
    connect(take_, &QPushButton::clicked, this, &WayBackDialog::take);
    connect(save_, &QPushButton::clicked, this, &WayBackDialog::save);
    connect(close_, &QPushButton::clicked, this, &WayBackDialog::reject);
    connect(work_, &QThread::finished, this, &WayBackDialog::onFinished);
    connect(work_, &WayBackWork::stepped, this, [this](int step, int steps) {
        bar_->setMaximum(steps);
        bar_->setValue(step);
    });
}

void WayBackDialog::listSessions(qint64 current)
{
    const QSignalBlocker blocker(sessions_);
    sessions_->clear();
    try {
        for (const Session &session : journal_.store().sessions()) {
            if (session.changes == 0) // of nothing but the program's own records
                continue;
            QTreeWidgetItem *row = rowOf(session, journal_.user());
            sessions_->insertTopLevelItem(0, row);
            if (session.id == current)
                sessions_->setCurrentItem(row);
        }
    } catch (const MachineError &error) {
        tell(error.message);
    }
    if (sessions_->currentItem() == nullptr)
        sessions_->setCurrentItem(sessions_->topLevelItem(0));
    for (int column = 0; column < SessionColumnCount; ++column)
        sessions_->resizeColumnToContents(column);
    constexpr int widest = 480; // so that most of the dialog is left for the changes
    sessions_->setMinimumWidth(std::min(grown(widest), sessions_->header()->length() + 2 * sessions_->frameWidth()
                                                           + sessions_->verticalScrollBar()->sizeHint().width()));
}

qint64 WayBackDialog::currentSession() const
{
    const QTreeWidgetItem *row = sessions_->currentItem();
    return row != nullptr ? row->data(When, idRole).toLongLong() : 0;
}

Selection WayBackDialog::chosen() const
{
    Selection selection;
    selection.firstSession = currentSession();
    selection.lastSession = later_->isChecked() ? 0 : selection.firstSession;
    return selection;
}

void WayBackDialog::look()
{
    if (currentSession() == 0) {
        status_->setText(Kestrune::tr("No changes have been noted on this PC so far."));
        allowTaking();
        return;
    }
    looksAgain_ = doing_ == Doing::Looking;
    if (doing_ != Doing::Nothing)
        return;
    model_->setItems({});
    showDoing(Doing::Looking);
    status_->setText(Kestrune::tr("Reading what has become of it…"));
    work_->look(chosen());
}

void WayBackDialog::take()
{
    if (doing_ != Doing::Nothing || !model_->isAnyChecked())
        return;
    othersLock_ = lockOthersOutOrTell();
    if (!othersLock_)
        return;
    bar_->setMaximum(0);
    showDoing(Doing::Taking);
    status_->setText(Kestrune::tr("Taking back…"));
    work_->take(model_->checkedOf(chosen()));
}

void WayBackDialog::save()
{
    if (doing_ != Doing::Nothing || !model_->isAnyChecked())
        return;
    // The system's own dialog would bring programs of others into an elevated process.
    const QString folder =
        QFileDialog::getExistingDirectory(this, Kestrune::tr("Folder for the files of the way back"), QString(),
                                          QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    if (folder.isEmpty())
        return;
    showDoing(Doing::Saving);
    work_->save(model_->checkedOf(chosen()), folder);
}

void WayBackDialog::onFinished()
{
    work_->wait(); // for the thread's last instructions
    const Doing done = doing_;
    showDoing(Doing::Nothing);
    if (looksAgain_)
        look();
    else if (done == Doing::Looking)
        onLooked();
    else if (done == Doing::Saving)
        onSaved();
    else
        onTaken();
}

void WayBackDialog::onLooked()
{
    model_->setItems(work_->items);
    showVerdicts();
    if (!work_->failure.isEmpty())
        tell(work_->failure);
}

void WayBackDialog::onTaken()
{
    othersLock_.reset();
    listSessions(currentSession()); // taking back is a session, too
    const QString failure = work_->failure;
    if (work_->items.isEmpty()) {
        look();
    } else {
        model_->update(work_->items);
        showVerdicts();
    }
    if (!failure.isEmpty())
        tell(failure);
}

void WayBackDialog::onSaved()
{
    constexpr qsizetype most = 20; // lines that a box shows

    const WrittenWayBack &written = work_->written;
    if (!work_->failure.isEmpty()) {
        tell(work_->failure);
    } else if (written.leftOut.isEmpty()) {
        tell(Kestrune::tr("Written: %1").arg(QDir::toNativeSeparators(written.files.value(0))));
    } else {
        QStringList lines = written.leftOut.first(std::min(most, written.leftOut.size()));
        if (lines.size() < written.leftOut.size())
            lines.append(u"…"_s);
        tell(Kestrune::tr("The files can't bring back:") + u"\n\n"_s + lines.join(u'\n'));
    }
}

void WayBackDialog::reject()
{
    if (doing_ != Doing::Taking && doing_ != Doing::Saving) {
        QDialog::reject();
        return;
    }
    close_->setEnabled(false); // until it has ended
    work_->requestInterruption();
}

void WayBackDialog::checkAll(bool on)
{
    for (int row = 0; row < shown_->rowCount(); ++row)
        model_->check(shown_->mapToSource(shown_->index(row, 0)).row(), on);
}

void WayBackDialog::showDoing(Doing doing)
{
    doing_ = doing;
    const bool isBusy = doing == Doing::Taking || doing == Doing::Saving;
    bar_->setVisible(doing == Doing::Taking);
    close_->setEnabled(true);
    close_->setText(isBusy ? Kestrune::tr("Cancel") : Kestrune::tr("Close"));
    for (QWidget *widget :
         {static_cast<QWidget *>(sessions_), static_cast<QWidget *>(later_), static_cast<QWidget *>(changes_),
          static_cast<QWidget *>(checkAll_), static_cast<QWidget *>(uncheckAll_)})
        widget->setEnabled(!isBusy);
    allowTaking();
}

void WayBackDialog::showVerdicts()
{
    const QList<TakenItem> &items = model_->items();
    const auto back = std::count_if(items.cbegin(), items.cend(),
                                    [](const TakenItem &item) { return item.verdict == WayBack::AsItWas; });
    status_->setText(Kestrune::tr("%1 of %2 are as they were.").arg(back).arg(items.size()) + newWindowsText());
}

QString WayBackDialog::newWindowsText() const
{
    const QString now = windowsBuild(journal_.system());
    const QTreeWidgetItem *row = sessions_->currentItem();
    const QString then = row != nullptr ? row->data(When, windowsRole).toString() : QString();
    if (then.isEmpty() || now.isEmpty() || then == now)
        return {};
    const QList<TakenItem> &items = model_->items();
    const auto lost = std::count_if(items.cbegin(), items.cend(), [](const TakenItem &item) {
        return item.wasChanged && (item.verdict == WayBack::AsItWas || item.verdict == WayBack::Changed);
    });
    return u' '
           + Kestrune::tr("Windows was updated from build %1 to %2 since. No longer in force: %3.")
                 .arg(then, now)
                 .arg(lost);
}

void WayBackDialog::allowTaking()
{
    const bool isReady = doing_ == Doing::Nothing && model_->isAnyChecked();
    take_->setEnabled(isReady);
    save_->setEnabled(isReady);
}
