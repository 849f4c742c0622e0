// Makes the disk slow as long as an object lives: each flush takes 300 ms more, each read of the database engine 20 ms.
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
