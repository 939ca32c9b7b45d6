// SPDX-License-Identifier: GPL-3.0-or-later
// What the next Optimize would change on this PC, and what Restore would bring back of it.

#pragma once

#include "previewrun.h"

#include <QDialog>

class Kestrune;
class QJsonObject;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

class PreviewDialog final : public QDialog
{
    Q_OBJECT

public:
    /**
     * Begins to look.
     * @param options of Optimize, as `kestrune-rehearse preview` takes them
     */
    PreviewDialog(const PreviewPlace &place, const QStringList &options, Kestrune *window);

    /** Cancels what is under way; closes where nothing is. */
    void reject() override;

private:
    void makeWidgets();
    void layOut();
    void onFinished();
    /** Lists what previewJson() has told. */
    void show(const QJsonObject &preview);
    /** What a person calls it; an option by its box. */
    QString itemTitle(const QJsonObject &item) const;
    void addItem(QTreeWidgetItem *group, const QJsonObject &item);
    QTreeWidgetItem *groupOf(const QString &title);
    /** Shows the rows with the text in any column, and those above them. */
    void search(const QString &text);
    void explainCurrent();

    Kestrune *window_;
    PreviewRun *run_;
    const bool isWhole_;
    bool isRunning_ = true;

    QLabel *counts_ = nullptr;
    QLineEdit *search_ = nullptr;
    QTreeWidget *items_ = nullptr;
    QLabel *explanation_ = nullptr;
    QLabel *status_ = nullptr;
    QProgressBar *bar_ = nullptr;
    QPushButton *close_ = nullptr;
};
