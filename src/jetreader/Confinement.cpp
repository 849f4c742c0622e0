#include "jetreader/Confinement.h"

#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>

#include <cerrno>
#include <cstddef>
#include <vector>

namespace jet {

namespace {

#if defined(__x86_64__)
constexpr unsigned kMachine = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__)
constexpr unsigned kMachine = AUDIT_ARCH_AARCH64;
#else
constexpr unsigned kMachine = 0;
#endif

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kPossible = false;
#else
constexpr bool kPossible = kMachine != 0;
#endif

constexpr unsigned kAllowed[] = {__NR_read,       __NR_write,  __NR_writev,     __NR_lseek,        __NR_brk,   __NR_mmap,
                                 __NR_munmap,     __NR_mremap, __NR_madvise,    __NR_fstat,        __NR_futex, __NR_rt_sigreturn,
                                 __NR_newfstatat, __NR_exit,   __NR_exit_group, __NR_clock_gettime};

sock_filter Load(std::size_t offset)
{
    return BPF_STMT(BPF_LD | BPF_W | BPF_ABS, static_cast<unsigned>(offset));
}

sock_filter Answer(unsigned action)
{
    return BPF_STMT(BPF_RET | BPF_K, action);
}

std::vector<sock_filter> Filter()
{
    std::vector<sock_filter> filter{Load(offsetof(seccomp_data, arch)), BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, kMachine, 1, 0),
                                    Answer(SECCOMP_RET_KILL_PROCESS), Load(offsetof(seccomp_data, nr))};
    for (const unsigned call : kAllowed) {
        filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1));
        filter.push_back(Answer(SECCOMP_RET_ALLOW));
    }
    filter.push_back(Answer(SECCOMP_RET_ERRNO | EPERM));
    return filter;
}

} // namespace

void Confine()
{
    if constexpr (kPossible) {
        std::vector<sock_filter> filter = Filter();
        const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
        prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
        prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program);
    }
}

} // namespace jet
