// Finds out whether this program runs already for the same purpose, and calls the one that runs.
#pragma once

#include <string>

namespace ptk {

// The first of a user's programs that makes one with a name hears of each later one. Nothing of it is left behind, however a program ends.
class SingleInstance
{
public:
    // `name` says what a user may run only one program for at a time; it may be of any length.
    explicit SingleInstance(const std::string& name);

    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    // Whether another program of this user runs with that name; it has been called by now. False also where the system does not tell.
    [[nodiscard]] bool RunsAlready() const { return m_runsAlready; }

    // The descriptor of the first program's socket, to be watched for reading; -1 in later ones.
    [[nodiscard]] int Number() const { return m_listens ? m_socket : -1; }

    // Takes what there is to read and answers whether it was a call of the same user. Does not wait.
    [[nodiscard]] bool TakeCall() const;

private:
    int m_socket = -1;
    bool m_listens = false;
    bool m_runsAlready = false;
};

} // namespace ptk
