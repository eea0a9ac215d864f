#pragma once

#include <chrono>
#include <csignal>
#include <exception>
#include <gtest/gtest.h>
#include <random>
#include <sys/types.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace valmerix {

/// How long a task takes in a process of its own, from its start to its end.
template <class Tarea>
std::chrono::microseconds Duracion(Tarea tarea)
{
    const auto antes = std::chrono::steady_clock::now();
    const pid_t hijo = fork();
    if (hijo == 0) {
        tarea();
        _exit(0);
    }
    int estado = 0;
    waitpid(hijo, &estado, 0);
    EXPECT_TRUE(WIFEXITED(estado) && WEXITSTATUS(estado) == 0) << "the task ends well when nothing kills it";
    return std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - antes);
}

/// Starts a task in a process of its own and kills that at a random moment of the time given. True when the
/// kill was in time, false when the task had ended before.
template <class Tarea>
bool MatarEnMedio(Tarea tarea, std::chrono::microseconds duracion, std::mt19937& azar)
{
    std::uniform_int_distribution<long> momento(0, duracion.count());
    const pid_t hijo = fork();
    if (hijo == 0) {
        try {
            tarea();
            _exit(0);
        } catch (const std::exception&) {
            _exit(100);
        }
    }
    std::this_thread::sleep_for(std::chrono::microseconds(momento(azar)));
    kill(hijo, SIGKILL);
    int estado = 0;
    EXPECT_EQ(waitpid(hijo, &estado, 0), hijo);
    EXPECT_TRUE(WIFSIGNALED(estado) || WEXITSTATUS(estado) == 0) << "the task itself failed";
    return WIFSIGNALED(estado);
}

} // namespace valmerix
