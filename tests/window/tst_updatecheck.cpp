// SPDX-License-Identifier: GPL-3.0-or-later
// The check for a newer version, against a small server that stands in for the program's host.

#include "support/boxes.h"
#include "support/suite.h"
#include "support/windowdriver.h"

#include <QApplication>
#include <QCheckBox>
#include <QDate>
#include <QDesktopServices>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/**
 * Answers every request alike. It is the proxy of the whole process, so that the requests come to it by the true
 * address, whichever host that names.
 */
class Server : public QTcpServer
{
    Q_OBJECT

public:
    Server()
    {
        connect(this, &QTcpServer::newConnection, this, &Server::onConnection);
        if (!listen(QHostAddress::LocalHost))
            qFatal("no server on this computer");
        QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::HttpProxy, u"127.0.0.1"_s, serverPort()));
    }
    ~Server() override { QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy); }
    Q_DISABLE_COPY_MOVE(Server)

    QByteArray status = "200 OK";
    QByteArray body;
    qint64 announced = -1; ///< length that is told; -1 tells the true one
    qint64 bodies = 1;     ///< how many times the body is sent
    int delay = 0;         ///< milliseconds before the answer
    bool hangsUp = false;  ///< after what was sent
    QStringList requests;  ///< first lines
    qint64 sent = 0;       ///< bytes that the other side took

private:
    void onConnection()
    {
        while (QTcpSocket *socket = nextPendingConnection()) {
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                const QByteArray request = socket->readAll();
                if (!request.startsWith("GET"))
                    return;
                requests.append(QString::fromLatin1(request).section(u"\r\n"_s, 0, 0));
                QTimer::singleShot(delay, socket, [this, socket] { answer(socket); });
            });
        }
    }

    void answer(QTcpSocket *socket)
    {
        const qint64 length = announced >= 0 ? announced : body.size() * bodies;
        socket->write("HTTP/1.1 " + status + "\r\nContent-Type: text/plain\r\nContent-Length: "
                      + QByteArray::number(length) + "\r\nConnection: close\r\n\r\n" + body);
        connect(socket, &QTcpSocket::bytesWritten, this, [this, socket, left = bodies - 1](qint64 written) mutable {
            sent += written;
            if (socket->bytesToWrite() == 0 && left-- > 0)
                socket->write(body);
        });
        if (hangsUp)
            socket->disconnectFromHost();
    }
};

/** Takes the pages that are opened in the browser. */
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler(u"http"_s, this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(u"http"_s); }
    Q_DISABLE_COPY_MOVE(Browser)

    QStringList opened;

public Q_SLOTS:
    void open(const QUrl &url) { opened.append(url.toString()); }
};

class UpdateDriver : public WindowDriver
{
public:
    UpdateDriver() { window().appVersion = u"0.3.14"_s; }

    /** Checks the box of the Options page, whose page must be shown. */
    void check() const { get<QCheckBox>(u"chkOptionsCheckUpdate"_s)->setChecked(true); }
    QList<QNetworkReply *> replies() const { return window().findChildren<QNetworkReply *>(); }
    /** Waits until the one request has come to its end, and what follows from it too. */
    bool waitForEnd() const
    {
        const bool ended =
            QTest::qWaitFor([this] { return replies().size() == 1 && replies().first()->isFinished(); }, patience);
        QTest::qWait(20);
        return ended;
    }
};

QString today()
{
    return QDate::currentDate().toString(u"dd.MM.yyyy"_s);
}

} // namespace

class TestUpdateCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameVersionSaysNothing();
    void otherVersionAsks_data();
    void otherVersionAsks();
    void failureSaysNothingAndCountsForToday_data();
    void failureSaysNothingAndCountsForToday();
    void longAnswerIsCut_data();
    void longAnswerIsCut();
    void tooLongAnswerSaysNothing();
    void hundredMegabytesAreGivenUp();
    void slowAnswerIsReadWhenItComes();
    void yesOpensThePageOfTheLanguage_data();
    void yesOpensThePageOfTheLanguage();
    void noOpensNothing();
    void twoChecksOnOneDayMakeOneRequest();
    void checkOfAnEarlierDayCountsNoMore();
    void startChecksWhereItIsAskedFor_data();
    void startChecksWhereItIsAskedFor();
    void uncheckingTheBoxChecksNothing();
};

void TestUpdateCheck::sameVersionSaysNothing()
{
    const TestMachine pc;
    const Boxes boxes;
    Server server;
    server.body = "0.3.14";
    const UpdateDriver driver;
    driver.window().showPage(7);
    driver.check();
    QVERIFY(driver.waitForEnd());
    QCOMPARE(server.requests, QStringList{u"GET http://kestrune.example/build/ver.txt HTTP/1.1"_s});
    QCOMPARE(boxes.shown().size(), 0);
}

void TestUpdateCheck::otherVersionAsks_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("newer") << QByteArray("0.3.15");
    QTest::newRow("older") << QByteArray("0.3.13");
    QTest::newRow("the same with a line break") << QByteArray("0.3.14\r\n");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("HTML") << QByteArray("<html><body><h1>It works!</h1></body></html>");
    QTest::newRow("text that looks like a place for a value") << QByteArray("%1 and %2");
    QTest::newRow("as long as an answer may be") << QByteArray(4096, '7');
}

void TestUpdateCheck::otherVersionAsks()
{
    QFETCH(QByteArray, body);
    const TestMachine pc;
    Boxes boxes({QMessageBox::No});
    Server server;
    server.body = body;
    const UpdateDriver driver;
    driver.window().showPage(7);
    driver.check();
    QTRY_COMPARE_WITH_TIMEOUT(boxes.shown().size(), 1, patience);
    const ShownBox box = boxes.shown().first();
    QCOMPARE(box.text, u"A newer version of Kestrune is available!\r\nWould you like to visit the website for "
                       "download?\r\n\r\nCurrent version: 0.3.14\r\nOnline version: "_s
                           + QString::fromUtf8(body));
    QCOMPARE(box.icon, QMessageBox::Information);
    QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.buttonTexts, QStringList({u"Yes"_s, u"No"_s}));
    QVERIFY(box.modal);
    QVERIFY(!box.hasParent);
}

void TestUpdateCheck::failureSaysNothingAndCountsForToday_data()
{
    addColumns<QByteArray, qint64, bool>("status", "announced", "hangsUp");
    QTest::newRow("no such file") << QByteArray("404 Not Found") << qint64(-1) << false;
    QTest::newRow("server's fault") << QByteArray("500 Internal Server Error") << qint64(-1) << false;
    QTest::newRow("dropped connection") << QByteArray("200 OK") << qint64(100) << true;
}

void TestUpdateCheck::failureSaysNothingAndCountsForToday()
{
    QFETCH(QByteArray, status);
    QFETCH(qint64, announced);
    QFETCH(bool, hangsUp);
    const TestMachine pc;
    const Boxes boxes;
    Server server;
    server.status = status;
    server.announced = announced;
    server.hangsUp = hangsUp;
    server.body = "0.3.15";
    const UpdateDriver driver;
    driver.window().showPage(7);
    driver.check();
    QVERIFY(driver.waitForEnd());
    QVERIFY(driver.replies().first()->error() != QNetworkReply::NoError);
    QCOMPARE(boxes.shown().size(), 0);
    QCOMPARE(pc.read(settingsKey, u"LastCheckUpdate"_s).toString(), today());
}

void TestUpdateCheck::longAnswerIsCut_data()
{
    addColumns<QByteArray, QString>("body", "shown");
    QTest::newRow("a byte too many") << QByteArray(4097, '7') << QString(200, u'7') + u'…';
    QTest::newRow("as long as may be") << QByteArray(64 * 1024, '7') << QString(200, u'7') + u'…';
    QTest::newRow("characters of several bytes") << QString(4000, u'ä').toUtf8() << QString(200, u'ä') + u'…';
    // A character of two code units isn't cut in two.
    QTest::newRow("a pair at the end") << QByteArray(199, '7') + QString(u"😀"_s).repeated(2000).toUtf8()
                                       << QString(199, u'7') + u"😀…"_s;
    QTest::newRow("markup") << QByteArray("<b>") + QByteArray(5000, '7') << u"<b>"_s + QString(197, u'7') + u'…';
}

void TestUpdateCheck::longAnswerIsCut()
{
    QFETCH(QByteArray, body);
    QFETCH(QString, shown);
    const TestMachine pc;
    Boxes boxes({QMessageBox::No});
    Server server;
    server.body = body;
    const UpdateDriver driver;
    driver.window().showPage(7);
    driver.check();
    QTRY_COMPARE_WITH_TIMEOUT(boxes.shown().size(), 1, patience);
    QCOMPARE(boxes.shown().first().text.section(u"Online version: "_s, 1), shown);
}

void TestUpdateCheck::tooLongAnswerSaysNothing()
{
    const TestMachine pc;
    const Boxes boxes;
    Server server;
    server.body = QByteArray(64 * 1024 + 1, '7');
    const UpdateDriver driver;
    driver.window().showPage(7);
    driver.check();
    QVERIFY(driver.waitForEnd());
    QCOMPARE(boxes.shown().size(), 0);
}

void TestUpdateCheck::hundredMegabytesAreGivenUp()
{
    const TestMachine pc;
    const Boxes boxes;
    Server server;
    server.body = QByteArray(100 * 1024, '7');
    server.bodies = 1024;
    const UpdateDriver driver;
    driver.window().showPage(7);
    driver.check();
    QVERIFY(driver.waitForEnd());
    QCOMPARE(driver.replies().first()->error(), QNetworkReply::OperationCanceledError);
    QCOMPARE(boxes.shown().size(), 0);
    // What the system holds on the way can't be called back.
    QVERIFY2(server.sent < 20 * 1024 * 1024, qPrintable(QString::number(server.sent)));
}

void TestUpdateCheck::slowAnswerIsReadWhenItComes()
{
    const TestMachine pc;
    Boxes boxes({QMessageBox::No});
    Server server;
    server.body = "0.3.15";
    server.delay = 700;
    const UpdateDriver driver;
    driver.window().showPage(7);
    driver.check();
    // The window goes on meanwhile, and the day is noted at once.
    QCOMPARE(pc.read(settingsKey, u"LastCheckUpdate"_s).toString(), today());
    driver.window().showPage(8);
    QCOMPARE(driver.window().currentPage(), 8);
    QCOMPARE(boxes.shown().size(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(boxes.shown().size(), 1, patience);
}

void TestUpdateCheck::yesOpensThePageOfTheLanguage_data()
{
    addColumns<int, QString>("language", "page");
    QTest::newRow("never chosen") << -1 << u"http://kestrune.example/download.html"_s;
    // Only the window's first state counts as English.
    QTest::newRow("English chosen") << 0 << u"http://kestrune.example/download_fr.html"_s;
    QTest::newRow("French chosen") << 1 << u"http://kestrune.example/download_fr.html"_s;
}

void TestUpdateCheck::yesOpensThePageOfTheLanguage()
{
    QFETCH(int, language);
    TestMachine pc;
    pc.write(settingsKey, u"lang"_s, u"en"_s);
    Boxes boxes({QMessageBox::Yes});
    Browser browser;
    Server server;
    server.body = "0.3.15";
    const UpdateDriver driver;
    if (language >= 0)
        QMetaObject::invokeMethod(&driver.window(), "onCbOptionsLangSelectionChanged", Q_ARG(int, language));
    driver.window().showPage(7);
    driver.check();
    QTRY_COMPARE_WITH_TIMEOUT(browser.opened.size(), 1, patience);
    QTEST(browser.opened.first(), "page");
}

void TestUpdateCheck::noOpensNothing()
{
    const TestMachine pc;
    Boxes boxes({QMessageBox::No});
    Browser browser;
    Server server;
    server.body = "0.3.15";
    const UpdateDriver driver;
    driver.window().showPage(7);
    driver.check();
    QTRY_COMPARE_WITH_TIMEOUT(boxes.shown().size(), 1, patience);
    QTest::qWait(20);
    QCOMPARE(browser.opened, QStringList());
}

void TestUpdateCheck::twoChecksOnOneDayMakeOneRequest()
{
    const TestMachine pc;
    const Boxes boxes;
    Server server;
    server.body = "0.3.14";
    const UpdateDriver driver;
    driver.window().showPage(7);
    driver.check();
    driver.get<QCheckBox>(u"chkOptionsCheckUpdate"_s)->setChecked(false);
    driver.check();
    QVERIFY(driver.waitForEnd());
    QCOMPARE(server.requests.size(), 1);
}

void TestUpdateCheck::checkOfAnEarlierDayCountsNoMore()
{
    TestMachine pc;
    pc.write(settingsKey, u"LastCheckUpdate"_s, u"02.01.2000"_s);
    const Boxes boxes;
    Server server;
    server.body = "0.3.14";
    const UpdateDriver driver;
    driver.window().showPage(7);
    driver.check();
    QVERIFY(driver.waitForEnd());
    QCOMPARE(server.requests.size(), 1);
    QCOMPARE(pc.read(settingsKey, u"LastCheckUpdate"_s).toString(), today());
}

void TestUpdateCheck::startChecksWhereItIsAskedFor_data()
{
    addColumns<int, int>("stored", "requests");
    QTest::newRow("asked for") << 1 << 1;
    QTest::newRow("not asked for") << 0 << 0;
    QTest::newRow("never stored") << -1 << 0;
}

void TestUpdateCheck::startChecksWhereItIsAskedFor()
{
    QFETCH(int, stored);
    QFETCH(int, requests);
    TestMachine pc;
    if (stored >= 0)
        pc.write(settingsKey, u"CheckUpdate"_s, stored);
    const Boxes boxes;
    Server server;
    server.body = "0.3.14";
    // The version is set when the window stands, in time for the answer.
    const UpdateDriver driver;
    QCOMPARE(driver.replies().size(), requests);
    if (requests > 0)
        QVERIFY(driver.waitForEnd());
    QCOMPARE(server.requests.size(), requests);
    QCOMPARE(pc.read(settingsKey, u"LastCheckUpdate"_s).isValid(), requests > 0);
}

void TestUpdateCheck::uncheckingTheBoxChecksNothing()
{
    TestMachine pc;
    const Boxes boxes;
    Server server;
    const UpdateDriver driver;
    pc.write(settingsKey, u"CheckUpdate"_s, 1);
    driver.window().showPage(7);
    driver.get<QCheckBox>(u"chkOptionsCheckUpdate"_s)->setChecked(false);
    QCOMPARE(pc.read(settingsKey, u"CheckUpdate"_s).toInt(), 0);
    QCOMPARE(driver.replies().size(), 0);
    QVERIFY(!pc.read(settingsKey, u"LastCheckUpdate"_s).isValid());
}

KESTRUNE_WINDOW_SUITE(TestUpdateCheck)
#include "tst_updatecheck.moc"
