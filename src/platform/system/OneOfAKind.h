// Whether this program runs already for the same purpose, and the call that tells the one that runs.
#pragma once

#include <string>

namespace ptk {

// The first of a user's programs that are made with one name hears of each later one. Nothing of it is left behind, however a program ends.
class OneOfAKind
{
public:
    // name: what no two programs of a user are to be for at a time; of any length.
    explicit OneOfAKind(const std::string& name);

    ~OneOfAKind();
    OneOfAKind(const OneOfAKind&) = delete;
    OneOfAKind& operator=(const OneOfAKind&) = delete;

    // Another one of this user runs; it has been called by now. False also where the system lets nobody know.
    [[nodiscard]] bool RunsAlready() const { return m_runsAlready; }

    // A file number to be watched for reading, of the first one; -1 of others.
    [[nodiscard]] int Number() const { return m_listens ? m_socket : -1; }

    // After there was something to read: whether it was a call of the same user. Does not wait.
    [[nodiscard]] bool TakeCall() const;

private:
    int m_socket = -1;
    bool m_listens = false;
    bool m_runsAlready = false;
};

} // namespace ptk
