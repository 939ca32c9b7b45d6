// SPDX-License-Identifier: GPL-3.0-or-later

#include "previewdialog.h"

#include "journal/takeback.h"
#include "kestrune.h"
#include "messagebox.h"
#include "rowtext.h"
#include "work/knowledge.h"
#include "work/tweaks/tweakcatalogue.h"

#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <span>

using namespace Qt::StringLiterals;

namespace {

enum Column { What, Now, Optimized, Restored, Verdict, ColumnCount };
constexpr int explanationRole = Qt::UserRole;

struct VerdictRow
{
    QLatin1StringView word; ///< as previewJson() has it
    const char *text;       ///< of one item
    const char *count;      ///< of all
};

// clang-format off
constexpr VerdictRow verdictRows[] = {
    {"exactly"_L1,    QT_TRANSLATE_NOOP("Kestrune", "exactly"),        QT_TRANSLATE_NOOP("Kestrune", "%1 come back exactly")},
    {"otherwise"_L1,  QT_TRANSLATE_NOOP("Kestrune", "as a fixed value"), QT_TRANSLATE_NOOP("Kestrune", "%1 as a fixed value")},
    {"not-at-all"_L1, QT_TRANSLATE_NOOP("Kestrune", "not at all"),     QT_TRANSLATE_NOOP("Kestrune", "%1 not at all")},
    {"unasked"_L1,    QT_TRANSLATE_NOOP("Kestrune", "by Restore only"), QT_TRANSLATE_NOOP("Kestrune", "%1 are changed by Restore only")},
};

// What previewJson() calls the groups.
constexpr const char *groupTitles[] = {
    QT_TRANSLATE_NOOP("Kestrune", "Services"),
    QT_TRANSLATE_NOOP("Kestrune", "Scheduled tasks"),
    QT_TRANSLATE_NOOP("Kestrune", "Windows applications"),
    QT_TRANSLATE_NOOP("Kestrune", "Programs started at logon"),
    QT_TRANSLATE_NOOP("Kestrune", "System options"),
    QT_TRANSLATE_NOOP("Kestrune", "Files"),
    QT_TRANSLATE_NOOP("Kestrune", "Other registry values"),
    QT_TRANSLATE_NOOP("Kestrune", "Kestrune's own records"),
};

// What it says of services, tasks, packages and options in a few words, several with a comma between them.
constexpr const char *sideWords[] = {
    QT_TRANSLATE_NOOP("Kestrune", "automatic"),
    QT_TRANSLATE_NOOP("Kestrune", "automatic (delayed)"),
    QT_TRANSLATE_NOOP("Kestrune", "manual"),
    QT_TRANSLATE_NOOP("Kestrune", "disabled"),
    QT_TRANSLATE_NOOP("Kestrune", "enabled"),
    QT_TRANSLATE_NOOP("Kestrune", "running"),
    QT_TRANSLATE_NOOP("Kestrune", "stopped"),
    QT_TRANSLATE_NOOP("Kestrune", "installed"),
    QT_TRANSLATE_NOOP("Kestrune", "not installed"),
    QT_TRANSLATE_NOOP("Kestrune", "starts"),
    QT_TRANSLATE_NOOP("Kestrune", "doesn't start"),
    QT_TRANSLATE_NOOP("Kestrune", "your setting"),
    QT_TRANSLATE_NOOP("Kestrune", "applied"),
    QT_TRANSLATE_NOOP("Kestrune", "applied in part"),
    QT_TRANSLATE_NOOP("Kestrune", "a fixed value"),
    QT_TRANSLATE_NOOP("Kestrune", "as now"),
    QT_TRANSLATE_NOOP("Kestrune", "written"),
    QT_TRANSLATE_NOOP("Kestrune", "kept"),
    QT_TRANSLATE_NOOP("Kestrune", "as before"),
    QT_TRANSLATE_NOOP("Kestrune", "not there"),
    QT_TRANSLATE_NOOP("Kestrune", "but not as before"),
    QT_TRANSLATE_NOOP("Kestrune", "none changed"),
    QT_TRANSLATE_NOOP("Kestrune", "an empty key"),
    QT_TRANSLATE_NOOP("Kestrune", "yes"),
    QT_TRANSLATE_NOOP("Kestrune", "no"),
};

// The same with a number for %1.
constexpr const char *countWords[] = {
    QT_TRANSLATE_NOOP("Kestrune", "%1 values"),
    QT_TRANSLATE_NOOP("Kestrune", "%1 changed"),
    QT_TRANSLATE_NOOP("Kestrune", "%1 as before"),
    QT_TRANSLATE_NOOP("Kestrune", "%1 otherwise"),
    QT_TRANSLATE_NOOP("Kestrune", "%1 stay changed"),
};

// What it calls the details that aren't named by the system, and the items that aren't.
constexpr const char *titleWords[] = {
    QT_TRANSLATE_NOOP("Kestrune", "start mode"),
    QT_TRANSLATE_NOOP("Kestrune", "delayed start"),
    QT_TRANSLATE_NOOP("Kestrune", "state"),
    QT_TRANSLATE_NOOP("Kestrune", "installed"),
    QT_TRANSLATE_NOOP("Kestrune", "the key itself"),
    QT_TRANSLATE_NOOP("Kestrune", "the file"),
    QT_TRANSLATE_NOOP("Kestrune", "its attributes"),
    QT_TRANSLATE_NOOP("Kestrune", "its owner and permissions"),
    QT_TRANSLATE_NOOP("Kestrune", "in the boot configuration"),
    QT_TRANSLATE_NOOP("Kestrune", "Records of what was done"),
    QT_TRANSLATE_NOOP("Kestrune", "Log and backups beside the program"),
};

// Why something comes back as it does; the preview may say more after it.
constexpr const char *reasons[] = {
    QT_TRANSLATE_NOOP("Kestrune", "Restore starts every service that Optimize has disabled and sets it to automatic: a service that used to start on demand or with a delay now starts automatically."),
    QT_TRANSLATE_NOOP("Kestrune", "Optimize does not record services that it sets to manual, so Restore doesn't know of them."),
    QT_TRANSLATE_NOOP("Kestrune", "Restore enables only the tasks that Optimize has recorded."),
    QT_TRANSLATE_NOOP("Kestrune", "Restore re-registers the app from its files, as Windows itself does for a new user."),
    QT_TRANSLATE_NOOP("Kestrune", "The app comes back as newly installed, without what it had stored."),
    QT_TRANSLATE_NOOP("Kestrune", "Restore re-registers an app from its files, which could not be found."),
    QT_TRANSLATE_NOOP("Kestrune", "The saved command is cut at its first \"=\", so the program starts without the rest of its arguments."),
    QT_TRANSLATE_NOOP("Kestrune", "Restore brings back only a command whose program is in quotation marks and exists on the disk."),
    QT_TRANSLATE_NOOP("Kestrune", "Restore doesn't know what you had: it writes a fixed value, mostly Windows' default, or deletes it."),
    QT_TRANSLATE_NOOP("Kestrune", "Restore doesn't reset this option, or not all of its values."),
    QT_TRANSLATE_NOOP("Kestrune", "The option was already as Optimize wants it, or isn't one that Optimize uses; Restore resets it anyway."),
    QT_TRANSLATE_NOOP("Kestrune", "Restore doesn't touch this file."),
    QT_TRANSLATE_NOOP("Kestrune", "Restore doesn't touch this value."),
};
// clang-format on

QString verdictText(const QString &word)
{
    for (const VerdictRow &row : verdictRows) {
        if (word == row.word)
            return Kestrune::tr(row.text);
    }
    return word;
}

/** In the user's language where it is one of these texts. */
QString knownText(const QString &text, std::span<const char *const> texts)
{
    for (const char *each : texts) {
        if (text == QLatin1StringView(each))
            return Kestrune::tr(each);
    }
    return text;
}

/** A side of an item or of a detail. */
QString sideText(const QJsonValue &side)
{
    if (!side.isString())
        return Kestrune::tr("not there");
    QStringList words = side.toString().split(", "_L1);
    for (QString &word : words) {
        const QString number = word.section(u' ', 0, 0);
        bool isCount = false;
        number.toInt(&isCount);
        word = isCount ? knownText(u"%1"_s + word.sliced(number.size()), countWords).replace("%1"_L1, number)
                       : knownText(word, sideWords);
    }
    return words.join(", "_L1);
}

/** What an item or a detail is called; a boot option by its name. */
QString titleText(const QString &title)
{
    constexpr QLatin1StringView bootOption("boot option ");
    return title.startsWith(bootOption, Qt::CaseInsensitive)
               ? Kestrune::tr("Boot option %1").arg(title.sliced(bootOption.size()))
               : knownText(title, titleWords);
}

/** Why something comes back as it does, and what is known of that. */
QString reasonText(const QString &why)
{
    constexpr QLatin1StringView inTheStore("It is in the Store: ");
    for (const char *each : reasons) {
        const QLatin1StringView reason(each);
        if (why.startsWith(reason)) {
            const QString more = why.sliced(reason.size()).trimmed();
            if (more.isEmpty())
                return Kestrune::tr(each);
            const QString told = more.startsWith(inTheStore)
                                     ? Kestrune::tr("It is in the Store: %1").arg(more.sliced(inTheStore.size()))
                                     : translatedText(more);
            return Kestrune::tr(each) + u' ' + told;
        }
    }
    return translatedText(why);
}

/** The text of a box without its second line, and without what stands in brackets. */
QString shortened(const QString &text)
{
    static const QRegularExpression brackets(u"\\s*[(（].*"_s, QRegularExpression::DotMatchesEverythingOption);
    return text.section(u'\n', 0, 0).remove(brackets);
}

void setSides(QTreeWidgetItem *row, const QJsonObject &sides)
{
    row->setText(Now, sideText(sides.value("before"_L1)));
    row->setText(Optimized, sideText(sides.value("optimized"_L1)));
    row->setText(Restored, sideText(sides.value("restored"_L1)));
    row->setText(Verdict, verdictText(sides.value("comesBack"_L1).toString()));
    for (int column = 0; column < ColumnCount; ++column)
        row->setToolTip(column, row->text(column).toHtmlEscaped());
}

void nameEmptyCells(QTreeWidgetItem *row)
{
    const QTreeWidgetItem *titles = row->treeWidget()->headerItem();
    for (int column = 0; column < ColumnCount; ++column)
        row->setData(column, Qt::AccessibleTextRole, spokenText(row->text(column), titles->text(column)));
}

/** Its name, what it is there for, what stops working without it, and why it comes back as it does. */
QString explanationOf(const QJsonObject &item, bool isEnglish)
{
    QStringList lines;
    if (const QString name = item.value("name"_L1).toString(); name != item.value("title"_L1).toString())
        lines.append(name);
    lines.append(translatedText(item.value("about"_L1).toString())); // of an option: the tool tip of its box
    // There are hundreds of these, and in English only.
    if (const QString without = item.value("without"_L1).toString(); isEnglish && !without.isEmpty())
        lines.append(u"Without it: "_s + without);
    lines.append(reasonText(item.value("why"_L1).toString()));
    lines.removeAll(QString());
    return lines.join(u'\n');
}

/** Whether the row or one below it has the text; shows those that do. */
bool showMatching(QTreeWidgetItem *row, const QString &text)
{
    bool matches = text.isEmpty();
    for (int column = 0; column < ColumnCount && !matches; ++column)
        matches = row->text(column).contains(text, Qt::CaseInsensitive);
    bool anyBelow = false;
    for (int i = 0; i < row->childCount(); ++i) {
        // What belongs to a match is shown with it.
        if (showMatching(row->child(i), matches ? QString() : text))
            anyBelow = true;
    }
    row->setHidden(!matches && !anyBelow);
    return !row->isHidden();
}

} // namespace

PreviewDialog::PreviewDialog(const PreviewPlace &place, const QStringList &options, Kestrune *window)
    : QDialog(window)
    , window_(window)
    , run_(new PreviewRun(place, this))
    , isWhole_(place.isWhole)
{
    makeWidgets();
    layOut();
    connect(run_, &PreviewRun::stepped, this, [this](int done, int total) {
        bar_->setMaximum(total);
        bar_->setValue(done);
    });
    connect(run_, &PreviewRun::captured, this, [this] { status_->setText(Kestrune::tr("Trying it on the copy…")); });
    connect(run_, &PreviewRun::finished, this, &PreviewDialog::onFinished);
    connect(search_, &QLineEdit::textChanged, this, &PreviewDialog::search);
    connect(items_, &QTreeWidget::currentItemChanged, this, &PreviewDialog::explainCurrent);
    connect(close_, &QPushButton::clicked, this, &PreviewDialog::reject);
    status_->setText(place.isCaptured ? Kestrune::tr("Copying this PC…") : Kestrune::tr("Trying it on a copy…"));
    run_->start(options);
}

void PreviewDialog::makeWidgets()
{
    counts_ = new QLabel;
    counts_->setObjectName(u"lblCounts"_s);
    counts_->setWordWrap(true);
    search_ = new QLineEdit;
    search_->setObjectName(u"edtSearch"_s);
    search_->setClearButtonEnabled(true);
    search_->findChild<QToolButton *>()->setAccessibleName(Kestrune::tr("Clear the search"));
    search_->setEnabled(false);
    items_ = new QTreeWidget;
    items_->setObjectName(u"lstPreview"_s);
    items_->setAccessibleName(Kestrune::tr("Changes"));
    items_->setHeaderLabels({Kestrune::tr("What"), Kestrune::tr("Now"), Kestrune::tr("After Optimize"),
                             Kestrune::tr("After Restore"), Kestrune::tr("Comes back")});
    items_->setUniformRowHeights(true);
    items_->setAllColumnsShowFocus(true);
    explanation_ = new QLabel;
    explanation_->setObjectName(u"lblExplanation"_s);
    explanation_->setTextFormat(Qt::PlainText);
    explanation_->setWordWrap(true);
    explanation_->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    status_ = new QLabel;
    status_->setObjectName(u"lblPreview"_s);
    status_->setWordWrap(true);
    bar_ = new QProgressBar;
    bar_->setObjectName(u"pgrPreview"_s);
    bar_->setAccessibleName(Kestrune::tr("Trying it on a copy…"));
    bar_->setMaximum(0);
    close_ = new QPushButton(Kestrune::tr("Cancel"));
    close_->setObjectName(u"btnClose"_s);
    close_->setAutoDefault(false);
}

void PreviewDialog::layOut()
{
    constexpr int linesOfCounts = 2;
    constexpr int linesOfExplanation = 4;
    const int line = fontMetrics().lineSpacing();

    setWindowTitle(Kestrune::tr("Preview of Optimize"));
    auto *searchLabel = new QLabel(Kestrune::tr("S&earch:"));
    searchLabel->setBuddy(search_);
    auto *searchLine = new QHBoxLayout;
    searchLine->addWidget(searchLabel);
    searchLine->addWidget(search_);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(status_, 1);
    buttons->addWidget(bar_);
    buttons->addWidget(close_);
    auto *all = new QVBoxLayout(this);
    all->addWidget(counts_);
    all->addLayout(searchLine);
    all->addWidget(items_, 1);
    counts_->setMinimumHeight(linesOfCounts * line);
    explanation_->setMinimumHeight(linesOfExplanation * line);
    all->addWidget(explanation_);
    all->addLayout(buttons);
    setTabOrder(search_, items_);
    setTabOrder(items_, close_);
    const int widths[] = {300, 190, 170, 190};
    for (int column = 0; column < static_cast<int>(std::size(widths)); ++column)
        items_->header()->resizeSection(column,
                                        std::max(grown(widths[column]), items_->header()->sectionSizeHint(column)));
    resize(grownWindow({1060, 640}));
}

void PreviewDialog::onFinished()
{
    isRunning_ = false;
    bar_->hide();
    close_->setText(Kestrune::tr("Close"));
    close_->setEnabled(true);
    status_->clear();
    if (!run_->json().isEmpty())
        show(QJsonDocument::fromJson(run_->json()).object());
    else if (run_->failure().isEmpty())
        QDialog::reject(); // cancelled
    else
        status_->setText(Kestrune::tr("There is no preview: %1").arg(run_->failure()));
}

void PreviewDialog::show(const QJsonObject &preview)
{
    const QJsonObject counts = preview.value("counts"_L1).toObject();
    QStringList told;
    for (const VerdictRow &row : verdictRows)
        told.append(Kestrune::tr(row.count).arg(counts.value(row.word).toInt()));
    counts_->setText(Kestrune::tr("What the next Optimize would change, and what the Restore button would bring back:")
                     + u'\n' + told.join(", "_L1) + u'.');
    for (const QJsonValue item : preview.value("items"_L1).toArray())
        addItem(groupOf(item["group"_L1].toString()), item.toObject());
    for (int i = 0; i < items_->topLevelItemCount(); ++i) {
        QTreeWidgetItem *group = items_->topLevelItem(i);
        group->setText(Now, QString::number(group->childCount()));
        group->setExpanded(true);
    }
    for (QTreeWidgetItemIterator each(items_); *each != nullptr; ++each)
        nameEmptyCells(*each);
    search_->setEnabled(true);
    QString more = Kestrune::tr("“Way back…” brings back more than Restore: what was noted before each change.");
    if (!isWhole_)
        more += u' ' + Kestrune::tr("This PC was looked at without Admin rights: what needs them is missing here.");
    status_->setText(more);
    items_->setCurrentItem(items_->topLevelItem(0));
}

QTreeWidgetItem *PreviewDialog::groupOf(const QString &title)
{
    const QString text = knownText(title, groupTitles);
    for (int i = 0; i < items_->topLevelItemCount(); ++i) {
        if (items_->topLevelItem(i)->text(What) == text)
            return items_->topLevelItem(i);
    }
    auto *group = new QTreeWidgetItem(items_, {text});
    QFont bold = items_->font();
    bold.setBold(true);
    group->setFont(What, bold);
    return group;
}

QString PreviewDialog::itemTitle(const QJsonObject &item) const
{
    for (const TweakBox &box : tweakBoxes()) {
        if (knowledgeOf(box.name).tip == item.value("about"_L1).toString())
            return shortened(window_->findChild<QCheckBox *>(box.name)->text());
    }
    return titleText(item.value("title"_L1).toString());
}

void PreviewDialog::addItem(QTreeWidgetItem *group, const QJsonObject &item)
{
    auto *row = new QTreeWidgetItem(group, {itemTitle(item)});
    row->setData(What, explanationRole, explanationOf(item, window_->currentLang.startsWith("en"_L1)));
    setSides(row, item);
    for (const QJsonValue each : item.value("details"_L1).toArray()) {
        auto *detail = new QTreeWidgetItem(row, {titleText(each["what"_L1].toString())});
        detail->setData(What, explanationRole, each["place"_L1].toString());
        setSides(detail, each.toObject());
    }
}

void PreviewDialog::search(const QString &text)
{
    for (int i = 0; i < items_->topLevelItemCount(); ++i)
        showMatching(items_->topLevelItem(i), text);
}

void PreviewDialog::explainCurrent()
{
    const QTreeWidgetItem *current = items_->currentItem();
    explanation_->setText(current != nullptr ? current->data(What, explanationRole).toString() : QString());
}

void PreviewDialog::reject()
{
    if (!isRunning_) {
        QDialog::reject();
        return;
    }
    close_->setEnabled(false); // until it has ended
    run_->cancel();
}

void Kestrune::on_btnOptionsPreview_clicked()
{
    if (workThread->isRunning() || !previewPlace)
        return;
    const PreviewPlace place = previewPlace();
    if (!place.failure.isEmpty()) {
        tell(place.failure);
        return;
    }
    QStringList options;
    if (!ui.chkAutomatizerProgram->isChecked())
        options.append(u"--no-programs"_s);
    if (!ui.chkAutomatizerTweak->isChecked())
        options.append(u"--no-features"_s);
    auto *dialog = new PreviewDialog(place, options, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}
