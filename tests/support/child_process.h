#pragma once

#include <QString>
#include <gtest/gtest.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace valmerix {

/// Runs `tarea` in a child process, so that it may lose its rights, its disk or its life. What the task
/// returns (0 to 99) is the child's exit code; an exception is 100. Gives the state of waitpid.
template <class Tarea>
int EnOtroProceso(Tarea tarea)
{
    const pid_t hijo = fork();
    if (hijo == 0) {
        try {
            _exit(tarea());
        } catch (const std::exception&) {
            _exit(100);
        }
    }
    int estado = -1;
    EXPECT_EQ(waitpid(hijo, &estado, 0), hijo);
    return estado;
}

/// In a child: gives up the rights of root, which no file mode binds.
inline bool DejarDeSerRoot()
{
    constexpr uid_t kNadie = 65534;
    return geteuid() != 0 || (setgid(kNadie) == 0 && setuid(kNadie) == 0);
}

} // namespace valmerix
