// Databases on a server to measure on.
#pragma once

#include "store/BenchData.h"

#include <string>

namespace bench {

// The folder of the server's socket, which --server names; empty: no server is measured.
void ServerFolder(std::string folder);

std::string ServerFolder();

// The address of a database with those rows, made when it is asked for first. The rows are those of the file of that size; the
// edit trail tells of the records alone, and only where the size has a history.
std::string ServerDatabase(const Size& size);

} // namespace bench
