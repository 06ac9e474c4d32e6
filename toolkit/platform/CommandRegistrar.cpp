#include "CommandRegistrar.h"

#include <map>
#include <mutex>

namespace {
struct Entry {
    CommandRegistrar::Command command;
    int flags = 0;
    LightweightString<char> group;
};
struct Table {
    std::mutex lock;
    std::map<LightweightString<char>, Entry> commands;
};
Table& table() {
    static Table* t = new Table; // commands may run during static destruction
    return *t;
}
} // namespace

CommandRegistrar::CommandRegistrar(const char* name, Command command) { add(name, std::move(command)); }

CommandRegistrar::CommandRegistrar(const char* name, Command command, int flags, const char* group) {
    add(name, std::move(command), flags, group ? LightweightString<char>(group) : LightweightString<char>());
}

void CommandRegistrar::add(const LightweightString<char>& name, Command command, int flags, const LightweightString<char>& group) {
    if (name.empty() || !command) return;
    std::lock_guard<std::mutex> g(table().lock);
    table().commands[name] = Entry{std::move(command), flags, group};
}

bool CommandRegistrar::invoke(const LightweightString<char>& name, const Zn::Ptr<iObject>& argument) {
    Command c;
    {
        std::lock_guard<std::mutex> g(table().lock);
        auto it = table().commands.find(name);
        if (it == table().commands.end()) return false;
        c = it->second.command;
    }
    // Run outside the lock: a command may register or invoke others.
    c(argument);
    return true;
}

bool CommandRegistrar::exists(const LightweightString<char>& name) {
    std::lock_guard<std::mutex> g(table().lock);
    return table().commands.count(name) != 0;
}

int CommandRegistrar::flags(const LightweightString<char>& name) {
    std::lock_guard<std::mutex> g(table().lock);
    auto it = table().commands.find(name);
    return it == table().commands.end() ? 0 : it->second.flags;
}

LightweightString<char> CommandRegistrar::group(const LightweightString<char>& name) {
    std::lock_guard<std::mutex> g(table().lock);
    auto it = table().commands.find(name);
    return it == table().commands.end() ? LightweightString<char>() : it->second.group;
}

std::vector<LightweightString<char>> CommandRegistrar::names() {
    std::lock_guard<std::mutex> g(table().lock);
    std::vector<LightweightString<char>> out;
    for (const auto& [name, c] : table().commands) out.push_back(name);
    return out;
}
