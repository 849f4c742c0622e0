// The address as the records of employees and companies print it.
#pragma once

#include <string>

namespace ptk {

// Appends "Address: " and the indented lines below it, each ending in CR LF. An empty second address line is left out.
template <typename Row>
void AppendAddress(std::string& text, const Row& row)
{
    text += "Address: \r\n\t" + row.Address1 + "\r\n";
    if (!row.Address2.empty()) {
        text += "\t" + row.Address2 + "\r\n";
    }
    text += "\t" + row.City + ", " + row.State + ". " + row.ZipCode + "\r\n";
}

} // namespace ptk
