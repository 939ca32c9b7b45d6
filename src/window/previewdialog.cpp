// SPDX-License-Identifier: GPL-3.0-or-later

#include "previewdialog.h"

#include "journal/takeback.h"
#include "kestrune.h"
#include "messagebox.h"

#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
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
    {"otherwise"_L1,  QT_TRANSLATE_NOOP("Kestrune", "as a default"),   QT_TRANSLATE_NOOP("Kestrune", "%1 as a default")},
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
    QT_TRANSLATE_NOOP("Kestrune", "a default"),
    QT_TRANSLATE_NOOP("Kestrune", "not there"),
    QT_TRANSLATE_NOOP("Kestrune", "but not as before"),
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
    for (QString &word : words)
        word = knownText(word, sideWords);
    return words.join(", "_L1);
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

/** Its name, what it is there for, and why it comes back as it does. */
QString explanationOf(const QJsonObject &item)
{
    QStringList lines;
    for (const QLatin1StringView part : {"name"_L1, "about"_L1, "why"_L1}) {
        if (const QString text = item.value(part).toString();
            !text.isEmpty() && text != item.value("title"_L1).toString())
            lines.append(translatedText(text)); // what is known of an option is the tool tip of its box
    }
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

PreviewDialog::PreviewDialog(const PreviewPlace &place, const QStringList &options, QWidget *parent)
    : QDialog(parent)
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
        items_->header()->resizeSection(column, std::max(widths[column], items_->header()->sectionSizeHint(column)));
    resize(1060, 640);
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
    for (const QJsonValue &item : preview.value("items"_L1).toArray())
        addItem(groupOf(item["group"_L1].toString()), item.toObject());
    for (int i = 0; i < items_->topLevelItemCount(); ++i) {
        QTreeWidgetItem *group = items_->topLevelItem(i);
        group->setText(Now, QString::number(group->childCount()));
        group->setExpanded(true);
    }
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

void PreviewDialog::addItem(QTreeWidgetItem *group, const QJsonObject &item)
{
    auto *row = new QTreeWidgetItem(group, {translatedText(item.value("title"_L1).toString())});
    row->setData(What, explanationRole, explanationOf(item));
    setSides(row, item);
    for (const QJsonValue &each : item.value("details"_L1).toArray()) {
        auto *detail = new QTreeWidgetItem(row, {each["what"_L1].toString()});
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
