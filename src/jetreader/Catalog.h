// What is in the file: its tables with their columns, and what its stored queries refer to.
#pragma once

#include "jetreader/JetFile.h"

namespace jet {

// Writes the lines
//   file    #3 or #4, #CODEPAGE, #BYTES behind the last page
//   table   #ID, =NAME     then, for each of its columns in their order,
//   column  =NAME, =TYPE   (boolean, integer, number, date, text, memo, other)
//   broken  =NAME          a table that cannot be read
//   query   =NAME, #ATTRIBUTE, expression, name, second name     each part of a stored query that names something
// Raises Refused when the catalog itself cannot be read.
void WriteCatalog(const JetFile& file);

// Writes the rows of a table: "row" with the fields asked for, then "rows" with #READ and #COUNT as the table's definition has it.
// `columns` are ordinals of the catalog's "column" lines, from 0. Raises Refused.
void WriteRows(const JetFile& file, std::uint32_t id, std::span<const std::size_t> columns);

} // namespace jet
