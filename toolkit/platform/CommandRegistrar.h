#pragma once

#include "core/LightweightString.h"
#include "core/Ptr.h"
#include "core/iObject.h"

#include <functional>
#include <vector>

/// Commands by name: registered at load by the code that defines them, invoked by
/// name with an optional argument object, listable for menus and programs.
class CommandRegistrar {
public:
    using Command = std::function<void(const Zn::Ptr<iObject>& argument)>;

    // Registers a command at load: keep the object as a static beside the command.
    CommandRegistrar(const char* name, Command command);
    // The same with the command's flags (the application's own bits, carried for
    // it) and the group that menus list it under.
    CommandRegistrar(const char* name, Command command, int flags, const char* group);

    static void add(const LightweightString<char>& name, Command command, int flags = 0, const LightweightString<char>& group = {});
    // Runs the command; false when there is no command of that name.
    static bool invoke(const LightweightString<char>& name, const Zn::Ptr<iObject>& argument = {});
    static bool exists(const LightweightString<char>& name);
    // A command's flags and group; 0 and empty for one that is not registered.
    static int flags(const LightweightString<char>& name);
    static LightweightString<char> group(const LightweightString<char>& name);
    // Every command's name, sorted.
    static std::vector<LightweightString<char>> names();
};
