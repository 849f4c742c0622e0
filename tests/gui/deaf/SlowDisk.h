// A disk on which each flush takes 300 ms and each read of the database engine 20 ms, for as long as one lives.
#pragma once

namespace ptk {

class SlowDisk
{
public:
    SlowDisk();
    ~SlowDisk();
    SlowDisk(const SlowDisk&) = delete;
    SlowDisk& operator=(const SlowDisk&) = delete;
};

} // namespace ptk
