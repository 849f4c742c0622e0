// The error numbers of lists, files and documents, by the class that sets them. The numbers are old and shared: the class that is asked
// tells two uses of one number apart. A number that means the same at two classes is defined at one of them and only named at the other.
// Failures of the platform and of the database engine carry numbers of their own (platform/Failure.h).
#pragma once

#include <cstdint>

namespace ptk {

// The error numbers of every list. No operation raises; it answers false or an empty entry and leaves one of these.
namespace listerror {
inline constexpr std::int32_t CreateFailed = 301;
inline constexpr std::int32_t DestroyFailed = 302;
inline constexpr std::int32_t InsertFailed = 312;
inline constexpr std::int32_t RemoveFailed = 313;
inline constexpr std::int32_t SaveFailed = 321;
inline constexpr std::int32_t ListEmpty = 331; // weeding a list without entries
inline constexpr std::int32_t ReadFailed = 341;
inline constexpr std::int32_t NoSuchPosition = 351; // removing outside 1 to Count
} // namespace listerror

// The error numbers of CFile; any other is the platform's own failure number.
namespace fileerror {
inline constexpr std::int32_t NotOpen = 503;   // or no file number was free
inline constexpr std::int32_t WriteOnly = 504; // read attempted in mode 1 or 2
inline constexpr std::int32_t ReadOnly = 505;  // write attempted in mode 0
inline constexpr std::int32_t NotClosed = 506; // or it could not take its place; only the reports set this one
} // namespace fileerror

// The error numbers of CDocLauncher. Any other refusal of the shell, and a success, leave ErrorNumber unchanged.
namespace docerror {
inline constexpr std::int32_t NoDocumentName = 901;
inline constexpr std::int32_t DocumentNotFound = 902;
inline constexpr std::int32_t NoParentWindow = 911;
} // namespace docerror

} // namespace ptk
