// SPDX-License-Identifier: GPL-3.0-or-later
// A preview of Optimize, made by kestrune-rehearse while the window stays responsive.

#pragma once

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <memory>

class QProcess;

/** What a preview is made of, and by which program. */
struct PreviewPlace
{
    QString program;              ///< the path of kestrune-rehearse
    QString machine;              ///< the folder of the rehearsal machine
    bool isCaptured = false;      ///< that is made of this PC first
    bool isWhole = true;          ///< false: captured without administrator rights, so that some of it is missing
    QString failure{};            ///< why there can be none, in the user's language; the rest is empty then
    std::shared_ptr<void> hold{}; ///< keeps the folder, and removes what was captured
};

/** One run of it: the capture where there is one, then the preview. Nothing of the PC is changed. */
class PreviewRun final : public QObject
{
    Q_OBJECT

public:
    PreviewRun(PreviewPlace place, QObject *parent);
    /** Ends what runs. */
    ~PreviewRun() override;

    /** @param options of Optimize, as `kestrune-rehearse preview` takes them */
    void start(const QStringList &options);
    /** It ends soon, with finished(). */
    void cancel();

    bool isCapturing() const { return isCapturing_; }
    /** What previewJson() makes; empty where it has failed or was cancelled. */
    QByteArray json() const { return json_; }
    /** Why it has failed, in English; empty where it was cancelled. */
    QString failure() const { return failure_; }

Q_SIGNALS:
    /** How many steps of how many are done, of the capture or of the preview. */
    void stepped(int done, int total);
    /** The capture is over and the preview begins. */
    void captured();
    void finished();

private:
    void startProgram(const QStringList &arguments);
    void preview();
    void readErrors();
    void onEnd();

    const PreviewPlace place_;
    QProcess *process_;
    QStringList options_;
    QByteArray json_;
    QString errors_;
    QString failure_;
    bool isCapturing_ = false;
    bool isCancelled_ = false;
};
