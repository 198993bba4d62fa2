#include "Tests/Diagnostics/ChildProgram.h"

#include "Tests/Diagnostics/TextFile.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

// POSIX leaves the declaration to the program, glibc does not.
extern char** environ; // NOLINT(readability-redundant-declaration)

namespace Orvello::Testing {

namespace {

std::vector<std::string> childEnvironment()
{
    std::vector<std::string> environment;
    for (char** entry = environ; *entry; ++entry)
        environment.emplace_back(*entry);
    // The last of several values for an option counts, and so do the user's other options.
    for (const char* name : { "ASAN_OPTIONS", "TSAN_OPTIONS", "UBSAN_OPTIONS" }) {
        const char* const options = std::getenv(name);
        std::erase_if(environment, [name](const std::string& entry) {
            return entry.starts_with(std::string(name) + '=');
        });
        environment.push_back(std::string(name) + '=' + (options ? options : "")
            + ":handle_segv=0:handle_sigbus=0:handle_abort=0:handle_sigill=0:handle_sigtrap=0"
              ":handle_sigfpe=0");
    }
    return environment;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace

ChildEnd runCrashProgram(const std::vector<std::string>& arguments)
{
    const QTemporaryDir folder;
    const std::string output = folder.filePath(QStringLiteral("stdout")).toStdString();
    const std::string error = folder.filePath(QStringLiteral("stderr")).toStdString();
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addopen(
        &actions, STDOUT_FILENO, output.c_str(), O_WRONLY | O_CREAT, 0600);
    ::posix_spawn_file_actions_addopen(
        &actions, STDERR_FILENO, error.c_str(), O_WRONLY | O_CREAT, 0600);

    std::vector<std::string> command { CRASH_PROGRAM };
    command.insert(command.end(), arguments.begin(), arguments.end());
    std::vector<std::string> environment = childEnvironment();
    pid_t child = 0;
    const int failure = ::posix_spawn(&child, CRASH_PROGRAM, &actions, nullptr,
        pointersTo(command).data(), pointersTo(environment).data());
    ::posix_spawn_file_actions_destroy(&actions);
    if (failure != 0) {
        ADD_FAILURE() << "cannot run " << CRASH_PROGRAM;
        return {};
    }

    int status = 0;
    ::waitpid(child, &status, 0);
    ChildEnd end;
    if (WIFEXITED(status))
        end.exitStatus = WEXITSTATUS(status);
    if (WIFSIGNALED(status))
        end.signal = WTERMSIG(status);
    end.standardOutput = readFile(output);
    end.standardError = readFile(error);
    return end;
}

} // namespace Orvello::Testing
