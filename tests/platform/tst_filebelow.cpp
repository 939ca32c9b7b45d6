// SPDX-License-Identifier: GPL-3.0-or-later
// The contract of writing into folders where others can put links.

#include "contractplatform.h"
#include "platform/windowsfacts.h"
#include "support/suite.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

#include <filesystem>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

using namespace Qt::StringLiterals;

namespace {

enum class Link { Symbolic, Dangling, Hard };

std::filesystem::path native(const QString &path)
{
    return path.toStdU16String();
}

/** False where the system doesn't let this user make such a link. */
bool link(const QString &name, const QString &target, Link kind, bool toFolder = false)
{
    std::error_code error;
    if (kind == Link::Hard) {
        std::filesystem::create_hard_link(native(target), native(name), error);
        return !error;
    }
#ifdef Q_OS_WIN
    const DWORD flags = toFolder ? SYMBOLIC_LINK_FLAG_DIRECTORY : 0;
    CreateSymbolicLinkW(native(name).c_str(), native(target).make_preferred().c_str(), flags);
    const DWORD attributes = GetFileAttributesW(native(name).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
#else
    Q_UNUSED(toFolder)
    std::filesystem::create_symlink(native(target), native(name), error);
    return !error;
#endif
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("can't write %s", qUtf8Printable(path));
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void addLinks()
{
    QTest::addColumn<Link>("kind");
    QTest::newRow("to a file") << Link::Symbolic;
    QTest::newRow("to what isn't there") << Link::Dangling;
    QTest::newRow("a second name") << Link::Hard;
}

} // namespace

class TestFileBelow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void fileIsWrittenAndReplaced();
    void anythingMayBeInIt_data();
    void anythingMayBeInIt();
    void foldersOnTheWayAreMade();
    void linkIsReplacedAndItsTargetStays_data() { addLinks(); }
    void linkIsReplacedAndItsTargetStays();
    void folderInTheWayIsAFailure();
    void missingFolderIsAFailure();
    void folderMayLieOnALink();
    void shortNameOfTheFolderWillDo();
    void linkOnTheWayIsAFailure();

    void exchangedFileIsWhole();
    void linkIsExchangedAndItsTargetStays_data() { addLinks(); }
    void linkIsExchangedAndItsTargetStays();

    void keptFileStays();
    void linkIsKeptAndItsTargetStays_data() { addLinks(); }
    void linkIsKeptAndItsTargetStays();
    void fileThatIsToBeKeptComesWhole();
    void leftoversDoNotMatter_data() { addLinks(); }
    void leftoversDoNotMatter();

    void readOnlyFileStays();
    void linesAreAppended();
    void lineIsAddedToNoLink_data() { addLinks(); }
    void lineIsAddedToNoLink();

private:
    QString at(const QString &name) const { return folder_->filePath(name); }
    bool writeFile(const QString &name, const QByteArray &content, IfThere ifThere = IfThere::Replace) const
    {
        return platform().writeFile(folder_->path(), name, content, ifThere);
    }
    bool appendLine(const QString &line) const { return platform().appendLine(folder_->path(), u"file"_s, line); }
    QStringList names() const { return QDir(folder_->path()).entryList(QDir::Files | QDir::System); }
    /** Puts a link to a file of another folder in place; false where there is no such link here. */
    bool lay(const QString &name, Link kind) const
    {
        const QString target = outside_->filePath(kind == Link::Dangling ? u"absent"_s : u"target"_s);
        return link(at(name), target, kind);
    }
    /** What the links lead to. */
    bool outsideIsUntouched() const
    {
        return read(outside_->filePath(u"target"_s)) == "of somebody else"
               && QDir(outside_->path()).entryList(QDir::Files) == QStringList(u"target"_s);
    }

    ContractPlatform contract_;
    std::unique_ptr<QTemporaryDir> folder_;
    std::unique_ptr<QTemporaryDir> outside_;
};

void TestFileBelow::init()
{
    folder_ = std::make_unique<QTemporaryDir>();
    outside_ = std::make_unique<QTemporaryDir>();
    write(outside_->filePath(u"target"_s), "of somebody else");
}

void TestFileBelow::fileIsWrittenAndReplaced()
{
    QVERIFY(writeFile(u"file"_s, "a longer first text"));
    QCOMPARE(read(at(u"file"_s)), QByteArray("a longer first text"));
    QVERIFY(writeFile(u"file"_s, "second"));
    QCOMPARE(read(at(u"file"_s)), QByteArray("second"));
    QCOMPARE(names(), QStringList(u"file"_s));
}

void TestFileBelow::anythingMayBeInIt_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("line ends and zeros") << QByteArray("a\r\nb\nc\0d\x1a", 9);
    QTest::newRow("20 MB") << QByteArray(20 * 1024 * 1024, 'x');
}

void TestFileBelow::anythingMayBeInIt()
{
    QFETCH(const QByteArray, content);
    for (const IfThere ifThere : {IfThere::Replace, IfThere::Keep}) {
        const QString name = ifThere == IfThere::Keep ? u"kept"_s : u"file"_s;
        QVERIFY(writeFile(name, content, ifThere));
        QVERIFY(QFile::exists(at(name)) && read(at(name)) == content);
    }
}

void TestFileBelow::foldersOnTheWayAreMade()
{
    for (const char *content : {"first", "second"}) {
        QVERIFY(writeFile(u"a/b/file"_s, content));
        QCOMPARE(read(at(u"a/b/file"_s)), QByteArray(content));
    }
}

void TestFileBelow::linkIsReplacedAndItsTargetStays()
{
    QFETCH(const Link, kind);
    if (!lay(u"file"_s, kind))
        QSKIP("this system or user makes no such links");
    QVERIFY(writeFile(u"file"_s, "ours"));
    QCOMPARE(read(at(u"file"_s)), QByteArray("ours"));
    QVERIFY(!QFileInfo(at(u"file"_s)).isSymbolicLink());
    QVERIFY(outsideIsUntouched());
}

void TestFileBelow::folderInTheWayIsAFailure()
{
    QVERIFY(QDir().mkpath(at(u"file"_s)));
    QVERIFY(!writeFile(u"file"_s, "ours"));
    QVERIFY(!writeFile(u"file"_s, "ours", IfThere::Keep));
    QVERIFY(!appendLine(u"ours"_s));
    QVERIFY(QDir(at(u"file"_s)).isEmpty() && names().isEmpty());
    write(at(u"folder"_s), "in the way");
    QVERIFY(!writeFile(u"folder/file"_s, "ours"));
    QCOMPARE(read(at(u"folder"_s)), QByteArray("in the way"));
}

void TestFileBelow::missingFolderIsAFailure()
{
    QVERIFY(!platform().writeFile(at(u"absent"_s), u"file"_s, "ours", IfThere::Replace));
    QVERIFY(!platform().writeFile(QString(), u"file"_s, "ours", IfThere::Keep));
    QVERIFY(!platform().appendLine(at(u"absent"_s), u"file"_s, u"ours"_s));
    QVERIFY(!QFile::exists(at(u"absent"_s)));
}

void TestFileBelow::folderMayLieOnALink()
{
    if (!link(at(u"way"_s), outside_->path(), Link::Symbolic, true))
        QSKIP("this system or user makes no such links");
    QVERIFY(platform().writeFile(at(u"way"_s), u"file"_s, "ours", IfThere::Replace));
    QCOMPARE(read(outside_->filePath(u"file"_s)), QByteArray("ours"));
}

void TestFileBelow::shortNameOfTheFolderWillDo()
{
    const QString folder = at(u"a folder with a long name"_s);
    QVERIFY(QDir().mkpath(folder));
    QString shortName = folder + u"/."_s;
#ifdef Q_OS_WIN
    wchar_t text[MAX_PATH];
    const DWORD length = GetShortPathNameW(native(folder).make_preferred().c_str(), text, MAX_PATH);
    QVERIFY(length > 0 && length < MAX_PATH);
    shortName = QString::fromWCharArray(text, static_cast<qsizetype>(length));
#endif
    QVERIFY(platform().writeFile(shortName, u"file"_s, "ours", IfThere::Replace));
    QVERIFY(platform().appendLine(shortName, u"log"_s, u"ours"_s));
    QCOMPARE(read(folder + u"/file"_s), QByteArray("ours"));
    QVERIFY(read(folder + u"/log"_s).startsWith("ours"));
}

void TestFileBelow::linkOnTheWayIsAFailure()
{
    if (!link(at(u"way"_s), outside_->path(), Link::Symbolic, true))
        QSKIP("this system or user makes no such links");
    QVERIFY(!writeFile(u"way/target"_s, "ours"));
    QVERIFY(!writeFile(u"way/new"_s, "ours", IfThere::Keep));
    QVERIFY(!platform().appendLine(folder_->path(), u"way/target"_s, u"ours"_s));
    QVERIFY(outsideIsUntouched());
}

void TestFileBelow::exchangedFileIsWhole()
{
    QVERIFY(writeFile(u"file"_s, "a longer first text", IfThere::Exchange));
    QVERIFY(writeFile(u"file"_s, "second", IfThere::Exchange));
    QCOMPARE(read(at(u"file"_s)), QByteArray("second"));
    QCOMPARE(names(), QStringList(u"file"_s));
    // It has the rights of the old one.
    constexpr auto rights = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QVERIFY(QFile::setPermissions(at(u"file"_s), rights));
    const QFile::Permissions former = QFile::permissions(at(u"file"_s));
    QVERIFY(writeFile(u"file"_s, "second", IfThere::Exchange));
    QCOMPARE(QFile::permissions(at(u"file"_s)), former);
    // Where the new one can't be made, the old one stays.
    QVERIFY(QDir(folder_->path()).mkdir(u"file.new"_s));
    QVERIFY(!writeFile(u"file"_s, "third", IfThere::Exchange));
    QCOMPARE(read(at(u"file"_s)), QByteArray("second"));
}

void TestFileBelow::linkIsExchangedAndItsTargetStays()
{
    QFETCH(const Link, kind);
    if (!lay(u"file"_s, kind))
        QSKIP("this system or user makes no such links");
    QVERIFY(writeFile(u"file"_s, "own", IfThere::Exchange));
    QCOMPARE(read(at(u"file"_s)), QByteArray("own"));
    QVERIFY(!QFileInfo(at(u"file"_s)).isSymbolicLink());
    QVERIFY(outsideIsUntouched());
}

void TestFileBelow::keptFileStays()
{
    write(at(u"file"_s), "first");
    QVERIFY(!writeFile(u"file"_s, "second", IfThere::Keep));
    QCOMPARE(read(at(u"file"_s)), QByteArray("first"));
    QCOMPARE(names(), QStringList(u"file"_s));
}

void TestFileBelow::linkIsKeptAndItsTargetStays()
{
    QFETCH(const Link, kind);
    if (!lay(u"file"_s, kind))
        QSKIP("this system or user makes no such links");
    const QStringList before = names();
    QVERIFY(!writeFile(u"file"_s, "ours", IfThere::Keep));
    QVERIFY(outsideIsUntouched());
    QCOMPARE(names(), before);
}

void TestFileBelow::fileThatIsToBeKeptComesWhole()
{
    QVERIFY(writeFile(u"folder/file"_s, "ours", IfThere::Keep));
    QCOMPARE(QDir(at(u"folder"_s)).entryList(QDir::Files), QStringList(u"file"_s));
    QCOMPARE(read(at(u"folder/file"_s)), QByteArray("ours"));
}

void TestFileBelow::leftoversDoNotMatter()
{
    QFETCH(const Link, kind);
    if (!lay(u"file.new"_s, kind))
        QSKIP("this system or user makes no such links");
    QVERIFY(writeFile(u"file"_s, "ours", IfThere::Keep));
    QCOMPARE(read(at(u"file"_s)), QByteArray("ours"));
    QCOMPARE(names(), QStringList(u"file"_s));
    QVERIFY(outsideIsUntouched());
}

void TestFileBelow::readOnlyFileStays()
{
    write(at(u"file"_s), "former");
    const quint32 word = platform().fileAttributes(at(u"file"_s));
    platform().setFileAttributes(at(u"file"_s), word | AttributeReadOnly);
    for (const IfThere ifThere : {IfThere::Replace, IfThere::Exchange, IfThere::Keep})
        QVERIFY(!writeFile(u"file"_s, "ours", ifThere));
#ifdef KESTRUNE_REAL_MACHINE
    // Wine lets the superuser append to such a file, whatever its attribute says.
    const bool isHeld = !QFile(at(u"file"_s)).open(QIODevice::Append);
#else
    const bool isHeld = true;
#endif
    if (isHeld)
        QVERIFY(!appendLine(u"ours"_s));
    QCOMPARE(read(at(u"file"_s)), QByteArray("former"));
    QCOMPARE(names(), QStringList(u"file"_s));
    platform().setFileAttributes(at(u"file"_s), word);
    QVERIFY(writeFile(u"file"_s, "ours"));
}

void TestFileBelow::linesAreAppended()
{
    write(at(u"file"_s), "before;");
    QVERIFY(appendLine(u"a"_s));
    QVERIFY(appendLine(u"Üb\nc"_s));
#ifdef Q_OS_WIN
    const QByteArray expected = "before;a\r\n\xc3\x9c"
                                "b\r\nc\r\n";
#else
    const QByteArray expected = "before;a\n\xc3\x9c"
                                "b\nc\n";
#endif
    QCOMPARE(read(at(u"file"_s)), expected);
}

void TestFileBelow::lineIsAddedToNoLink()
{
    QFETCH(const Link, kind);
    if (!lay(u"file"_s, kind))
        QSKIP("this system or user makes no such links");
    QVERIFY(!appendLine(u"ours"_s));
    QVERIFY(outsideIsUntouched());
}

KESTRUNE_SUITE(TestFileBelow)
#include "tst_filebelow.moc"
