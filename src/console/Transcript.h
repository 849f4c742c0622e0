// Keeps what a command says while it holds the database, until it has given the database up: a reader of the output that stops reading must
// not keep others from the file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ptk {

struct Console;
class Failure;

class Transcript
{
public:
    // Keeps a text for the output.
    void Print(std::string text);

    // Keeps a line for the error output, after the program's name.
    void Note(std::string_view line);

    // Keeps a line for the error output that names a file that was written.
    void NameFile(const std::string& path) { Note("written: " + path); }

    // Keeps the line that ptk::Complain writes, for the error output.
    void Complain(const Failure& failure);

    // Writes all that was kept, in its order, and keeps it no longer.
    void SayAll(const Console& console);

private:
    struct Saying
    {
        std::string text;
        bool isError = false;
    };

    std::vector<Saying> m_sayings;
};

} // namespace ptk
