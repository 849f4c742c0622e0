// What a command has to say while it holds the database, said when it has given it up: a reader that stops reading must not keep others
// from the file.
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
    // On the output.
    void Print(std::string text);

    // On the error output, after the program's name.
    void Note(std::string_view line);

    // A file that was written, likewise.
    void NameFile(const std::string& path) { Note("written: " + path); }

    // As ptk::Complain.
    void Complain(const Failure& failure);

    // In the order in which it came, once.
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
