// SPDX-License-Identifier: GPL-3.0-or-later
// The way back: what sessions have changed, and taking it back.

#pragma once

#include "waybackmodel.h"
#include "waybackwork.h"

#include <QDialog>

#include <memory>

class QCheckBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QSortFilterProxyModel;
class QTreeView;
class QTreeWidget;

class WayBackDialog final : public QDialog
{
    Q_OBJECT

public:
    /**
     * @param journal the platform in force
     * @param session the session that is shown first; the last one where there is none of that number
     * @param withLater all sessions after it are chosen, too
     */
    WayBackDialog(const Journal &journal, qint64 session, bool withLater, QWidget *parent);
    ~WayBackDialog() override;

    /** Asks what is under way to end; closes where nothing is taken back. */
    void reject() override;

private:
    enum class Doing { Nothing, Looking, Taking, Saving };

    void makeWidgets();
    void layOut();
    void connectWidgets();

    /** Lists the sessions, and makes one of them current. */
    void listSessions(qint64 current);
    qint64 currentSession() const;
    /** The sessions that are chosen, with all they have changed. */
    Selection chosen() const;
    void look();
    void take();
    void save();
    void onFinished();
    void onLooked();
    void onTaken();
    void onSaved();
    void checkAll(bool on);
    void showDoing(Doing doing);
    void showVerdicts();
    /** What a newer Windows has done to the changes of the session; empty where it is the same Windows. */
    QString newWindowsText() const;
    void allowTaking();

    const Journal &journal_;
    WayBackModel *model_;
    QSortFilterProxyModel *shown_;
    WayBackWork *work_;
    std::shared_ptr<void> othersLock_; ///< there while it takes back
    Doing doing_ = Doing::Nothing;
    bool looksAgain_ = false; ///< another choice was made while it looked

    QTreeWidget *sessions_ = nullptr;
    QCheckBox *later_ = nullptr;
    QLineEdit *search_ = nullptr;
    QTreeView *changes_ = nullptr;
    QPushButton *checkAll_ = nullptr;
    QPushButton *uncheckAll_ = nullptr;
    QLabel *status_ = nullptr;
    QProgressBar *bar_ = nullptr;
    QPushButton *take_ = nullptr;
    QPushButton *save_ = nullptr;
    QPushButton *close_ = nullptr;
};
