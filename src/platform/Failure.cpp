#include "platform/Failure.h"

#include <cerrno>
#include <cstring>
#include <new>
#include <utility>

namespace ptk {

namespace {

constexpr const char* kSource = "PTK";

const char* StandardDescription(std::int32_t number)
{
    switch (number) {
    case failure::InvalidProcedureCall:
        return "Invalid procedure call or argument";
    case failure::Overflow:
        return "Overflow";
    case failure::OutOfMemory:
        return "Out of memory";
    case failure::SubscriptOutOfRange:
        return "Subscript out of range";
    case failure::DivisionByZero:
        return "Division by zero";
    case failure::TypeMismatch:
        return "Type mismatch";
    case failure::BadFileNumber:
        return "Bad file name or number";
    case failure::FileNotFound:
        return "File not found";
    case failure::FileAlreadyOpen:
        return "File already open";
    case failure::DeviceIoError:
        return "Device I/O error";
    case failure::DiskFull:
        return "Disk full";
    case failure::InputPastEnd:
        return "Input past end of file";
    case failure::TooManyFiles:
        return "Too many files";
    case failure::PermissionDenied:
        return "Permission denied";
    case failure::PathFileAccess:
        return "Path/File access error";
    case failure::PathNotFound:
        return "Path not found";
    case failure::ObjectNotSet:
        return "Object variable not set";
    case failure::InvalidUseOfNull:
        return "Invalid use of Null";
    case failure::NoCurrentRecord:
        return "No current record";
    default:
        return "Application-defined or object-defined error";
    }
}

std::int32_t NumberForErrno(int error)
{
    switch (error) {
    case ENOENT:
        return failure::FileNotFound;
    case ENOTDIR:
        return failure::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return failure::PermissionDenied;
    case EISDIR:
    case ENXIO: // a pipe without a reader, or a socket
    case ELOOP:
        return failure::PathFileAccess;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return failure::DiskFull;
    case EMFILE:
    case ENFILE:
        return failure::TooManyFiles;
    case ENOMEM:
        return failure::OutOfMemory;
    case EINVAL:
    case ENAMETOOLONG:
        return failure::BadFileNumber;
    default:
        return failure::DeviceIoError;
    }
}

} // namespace

Failure::Failure(std::int32_t number) : Failure(number, kSource, StandardDescription(number)) {}

Failure::Failure(std::int32_t number, std::string source, std::string description, std::int32_t lastSystemError)
    : m_number(number), m_source(std::move(source)), m_description(std::move(description)), m_lastSystemError(lastSystemError)
{
}

Failure Failure::FromErrno(int error)
{
    const std::int32_t number = NumberForErrno(error);
    return {number, kSource, StandardDescription(number), error};
}

Failure CurrentFailure()
{
    if (!std::current_exception()) {
        return {0, "", ""};
    }
    try {
        throw;
    } catch (const Failure& failure) {
        return failure;
    } catch (const std::bad_alloc&) {
        return Failure(failure::OutOfMemory);
    } catch (const std::exception& other) {
        return {failure::InvalidProcedureCall, kSource, other.what()};
    } catch (...) {
        return Failure(failure::InvalidProcedureCall);
    }
}

} // namespace ptk
