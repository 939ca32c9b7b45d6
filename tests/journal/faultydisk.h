// SPDX-License-Identifier: GPL-3.0-or-later
// A disk below SQLite that fails when a test says so: at the n-th write, flush or opening of a file by this process; or
// on which somebody else is writing all the time, by a clock that goes on only where one waits for that.

#pragma once

#include <sqlite3.h>

#include <QtGlobal>

#include <atomic>
#include <climits>

/** Takes the place of SQLite's own way to the disk, for all databases that are opened from then on. */
class FaultyDisk
{
public:
    enum class Fault {
        Once,    ///< that one operation
        ForGood, ///< that one and all after it, as on a full disk
    };

    /** To be called once, before any database is opened. */
    static void install()
    {
        sqlite3_vfs *real = sqlite3_vfs_find(nullptr);
        static sqlite3_vfs faulty = *real;
        faulty.szOsFile = static_cast<int>(sizeof(File)) + real->szOsFile;
        faulty.zName = "faulty";
        faulty.pAppData = real;
        faulty.xOpen = open;
        faulty.xSleep = sleep;
        if (sqlite3_vfs_register(&faulty, 1) != SQLITE_OK)
            qFatal("SQLite takes no other disk");
    }

    /** Lets the operation with that number, from 1, fail. */
    static void failAt(int operation, Fault fault)
    {
        fault_ = fault;
        done_ = 0;
        first_ = operation;
    }
    /** Ends that. How many operations there were since. */
    static int stop()
    {
        first_ = INT_MAX;
        return done_;
    }

    /** Keeps writers out for so long from now on, in milliseconds. */
    static void lockFor(int milliseconds)
    {
        waited_ = 0;
        locked_ = milliseconds;
    }
    /** Milliseconds that were waited since, of which none has passed. */
    static int waited() { return waited_; }

private:
    struct File
    {
        sqlite3_file base;
    };

    static bool fails()
    {
        const int number = ++done_;
        return fault_ == Fault::Once ? number == first_ : number >= first_;
    }
    static sqlite3_file *realOf(sqlite3_file *file)
    {
        return reinterpret_cast<sqlite3_file *>(reinterpret_cast<File *>(file) + 1);
    }

    static int open(sqlite3_vfs *vfs, const char *name, sqlite3_file *file, int flags, int *outFlags)
    {
        file->pMethods = nullptr;
        if (fails())
            return SQLITE_CANTOPEN;
        auto *real = static_cast<sqlite3_vfs *>(vfs->pAppData);
        const int result = real->xOpen(real, name, realOf(file), flags, outFlags);
        if (realOf(file)->pMethods != nullptr)
            file->pMethods = methods();
        return result;
    }
    static int write(sqlite3_file *file, const void *data, int size, sqlite3_int64 at)
    {
        return fails() ? SQLITE_FULL : realOf(file)->pMethods->xWrite(realOf(file), data, size, at);
    }
    static int truncate(sqlite3_file *file, sqlite3_int64 size)
    {
        return fails() ? SQLITE_IOERR_TRUNCATE : realOf(file)->pMethods->xTruncate(realOf(file), size);
    }
    static int sync(sqlite3_file *file, int flags)
    {
        return fails() ? SQLITE_IOERR_FSYNC : realOf(file)->pMethods->xSync(realOf(file), flags);
    }

    static bool isLocked() { return waited_ < locked_; }
    static int sleep(sqlite3_vfs *vfs, int microseconds)
    {
        if (!isLocked()) {
            auto *real = static_cast<sqlite3_vfs *>(vfs->pAppData);
            return real->xSleep(real, microseconds);
        }
        waited_ += microseconds / 1000;
        return microseconds;
    }
    static int lockShared(sqlite3_file *file, int offset, int count, int flags)
    {
        constexpr int writers = SQLITE_SHM_LOCK | SQLITE_SHM_EXCLUSIVE;
        if (isLocked() && flags == writers)
            return SQLITE_BUSY;
        return realOf(file)->pMethods->xShmLock(realOf(file), offset, count, flags);
    }
    static int lock(sqlite3_file *file, int level)
    {
        if (isLocked() && level >= SQLITE_LOCK_RESERVED)
            return SQLITE_BUSY;
        return realOf(file)->pMethods->xLock(realOf(file), level);
    }

    static const sqlite3_io_methods *methods()
    {
        // What can't fail goes on to the real file.
        static const sqlite3_io_methods all = {
            .iVersion = 3,
            .xClose = [](sqlite3_file *file) { return realOf(file)->pMethods->xClose(realOf(file)); },
            .xRead = [](sqlite3_file *file, void *data, int size,
                        sqlite3_int64 at) { return realOf(file)->pMethods->xRead(realOf(file), data, size, at); },
            .xWrite = write,
            .xTruncate = truncate,
            .xSync = sync,
            .xFileSize = [](sqlite3_file *file,
                            sqlite3_int64 *size) { return realOf(file)->pMethods->xFileSize(realOf(file), size); },
            .xLock = lock,
            .xUnlock = [](sqlite3_file *file,
                          int level) { return realOf(file)->pMethods->xUnlock(realOf(file), level); },
            .xCheckReservedLock =
                [](sqlite3_file *file, int *held) {
                    return realOf(file)->pMethods->xCheckReservedLock(realOf(file), held);
                },
            .xFileControl =
                [](sqlite3_file *file, int operation, void *argument) {
                    return realOf(file)->pMethods->xFileControl(realOf(file), operation, argument);
                },
            .xSectorSize = [](sqlite3_file *file) { return realOf(file)->pMethods->xSectorSize(realOf(file)); },
            .xDeviceCharacteristics =
                [](sqlite3_file *file) { return realOf(file)->pMethods->xDeviceCharacteristics(realOf(file)); },
            .xShmMap =
                [](sqlite3_file *file, int page, int size, int extend, void volatile **memory) {
                    return extend != 0 && fails()
                               ? SQLITE_IOERR_SHMSIZE
                               : realOf(file)->pMethods->xShmMap(realOf(file), page, size, extend, memory);
                },
            .xShmLock = lockShared,
            .xShmBarrier = [](sqlite3_file *file) { realOf(file)->pMethods->xShmBarrier(realOf(file)); },
            .xShmUnmap = [](sqlite3_file *file,
                            int remove) { return realOf(file)->pMethods->xShmUnmap(realOf(file), remove); },
            .xFetch = [](sqlite3_file *file, sqlite3_int64 at, int size,
                         void **memory) { return realOf(file)->pMethods->xFetch(realOf(file), at, size, memory); },
            .xUnfetch = [](sqlite3_file *file, sqlite3_int64 at,
                           void *memory) { return realOf(file)->pMethods->xUnfetch(realOf(file), at, memory); },
        };
        return &all;
    }

    static inline std::atomic<int> done_ = 0;
    static inline std::atomic<int> first_ = INT_MAX;
    static inline std::atomic<Fault> fault_ = Fault::Once;
    static inline std::atomic<int> waited_ = 0;
    static inline std::atomic<int> locked_ = 0;
};
