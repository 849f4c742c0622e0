#include "store/sqlite/PatientDisk.h"

#include "platform/Waiting.h"

#include <sqlite3.h>

#include <functional>

namespace ptk {

namespace {

// The system's own file lies right behind it in the memory that the engine provides.
struct PatientFile
{
    sqlite3_file base;
    sqlite3* const* database; // nullptr for all but a database's main file
};

sqlite3_file* Inner(sqlite3_file* file)
{
    return reinterpret_cast<sqlite3_file*>(reinterpret_cast<PatientFile*>(file) + 1);
}

// Hands a method on to the system's file as it is.
template <auto Method>
struct HandedOn;

template <typename Result, typename... Arguments, Result (*sqlite3_io_methods::*Method)(sqlite3_file*, Arguments...)>
struct HandedOn<Method>
{
    static Result Call(sqlite3_file* file, Arguments... arguments)
    {
        sqlite3_file* const inner = Inner(file);
        return (inner->pMethods->*Method)(inner, arguments...);
    }
};

template <auto Method>
constexpr auto kOn = &HandedOn<Method>::Call;

using Methods = sqlite3_io_methods;

int PatientRead(sqlite3_file* file, void* bytes, int size, sqlite3_int64 at)
{
    sqlite3* const* const database = reinterpret_cast<PatientFile*>(file)->database;
    if (!waiting::GoOn() && database != nullptr) {
        sqlite3_interrupt(*database); // the engine has no other way to end a statement that leaves the file sound
    }
    return kOn<&Methods::xRead>(file, bytes, size, at);
}

int PatientWrite(sqlite3_file* file, const void* bytes, int size, sqlite3_int64 at)
{
    static_cast<void>(waiting::GoOn());
    return kOn<&Methods::xWrite>(file, bytes, size, at);
}

int PatientSync(sqlite3_file* file, int flags)
{
    int code = SQLITE_OK;
    const auto flush = [&] { code = kOn<&Methods::xSync>(file, flags); };
    waiting::Behind(std::ref(flush)); // std::ref asks for no memory: nothing may be raised through the engine
    return code;
}

int PatientControl(sqlite3_file* file, int what, void* argument)
{
    if (what == SQLITE_FCNTL_PDB) {
        reinterpret_cast<PatientFile*>(file)->database = static_cast<sqlite3**>(argument);
    }
    return kOn<&Methods::xFileControl>(file, what, argument);
}

constexpr Methods kMethods = {3,
                              kOn<&Methods::xClose>,
                              PatientRead,
                              PatientWrite,
                              kOn<&Methods::xTruncate>,
                              PatientSync,
                              kOn<&Methods::xFileSize>,
                              kOn<&Methods::xLock>,
                              kOn<&Methods::xUnlock>,
                              kOn<&Methods::xCheckReservedLock>,
                              PatientControl,
                              kOn<&Methods::xSectorSize>,
                              kOn<&Methods::xDeviceCharacteristics>,
                              kOn<&Methods::xShmMap>,
                              kOn<&Methods::xShmLock>,
                              kOn<&Methods::xShmBarrier>,
                              kOn<&Methods::xShmUnmap>,
                              kOn<&Methods::xFetch>,
                              kOn<&Methods::xUnfetch>};

sqlite3_vfs* System()
{
    static sqlite3_vfs* const system = sqlite3_vfs_find("unix");
    return system;
}

int OpenPatient(sqlite3_vfs* /*disk*/, sqlite3_filename name, sqlite3_file* file, int flags, int* flagsDone)
{
    const int code = System()->xOpen(System(), name, Inner(file), flags, flagsDone);
    const bool isOpen = Inner(file)->pMethods != nullptr;
    *reinterpret_cast<PatientFile*>(file) = {{isOpen ? &kMethods : nullptr}, nullptr};
    return code;
}

// Deletes a file. Flushing the folder then takes as long as flushing a file.
int DeletePatient(sqlite3_vfs* /*disk*/, const char* name, int flushesFolder)
{
    int code = SQLITE_OK;
    const auto remove = [&] { code = System()->xDelete(System(), name, flushesFolder); };
    if (flushesFolder == 0) {
        remove();
    } else {
        waiting::Behind(std::ref(remove));
    }
    return code;
}

// Takes everything else from the system's way, by the system's own data.
sqlite3_vfs Made()
{
    sqlite3_vfs disk = *System();
    disk.szOsFile += static_cast<int>(sizeof(PatientFile));
    disk.pNext = nullptr;
    disk.zName = "ptk-patient";
    disk.xOpen = OpenPatient;
    disk.xDelete = DeletePatient;
    return disk;
}

} // namespace

const char* PatientDisk()
{
    static sqlite3_vfs disk = Made();
    static const int registered = sqlite3_vfs_register(&disk, 0); // fails only without memory; opening then fails with it
    static_cast<void>(registered);
    return disk.zName;
}

} // namespace ptk
