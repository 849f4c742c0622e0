// The boxes of the start-up and the shutdown, word for word.
#pragma once

#include "platform/system/Notice.h"

namespace ptk {

namespace notice {

inline constexpr Notice AlreadyOpen{"PTK - Administrator", "The program is already open on this program folder.", Icon::Information};
inline constexpr Notice LogUnopened{"Log Open Error", "An error occurred opening the errorlog for writing.", Icon::Critical};
inline constexpr Notice ConfigurationUnread{
    "Configuration Settings Error", "Configuration File Read Error: check the configuration file before continuing.", Icon::Critical};
inline constexpr Notice OptionsUnread{
    "System Configuration Error", "An error occurred while loading system options. Check these options before continuing program usage.",
    Icon::Exclamation};
inline constexpr Notice ListsUnbuilt{
    "List Construction Error",
    "An error occurred while loading the data lists. The program may not function correctly until this error is corrected.",
    Icon::Critical};
inline constexpr Notice DatabaseHeld{"Database Open Error",
                                     "The database is currently open in another application. Please close the database before continuing.",
                                     Icon::Exclamation};
inline constexpr Notice DatabaseUnusable{"Database Open Error", "The database cannot be opened because it is missing or corrupt.",
                                         Icon::Exclamation};
inline constexpr Notice OptionsUnsaved{"Update Options Error",
                                       "An error occurred while saving program options. Please check the program options on next use.",
                                       Icon::Exclamation};
inline constexpr Notice ConfigurationUnsaved{
    "Update Configuration Error",
    "An error occurred while saving program configuration settings. Please check the program configuration before next use.",
    Icon::Exclamation};

} // namespace notice

} // namespace ptk
