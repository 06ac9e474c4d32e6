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

    static void add(const LightweightString<char>& name, Command command);
    // Runs the command; false when there is no command of that name.
    static bool invoke(const LightweightString<char>& name, const Zn::Ptr<iObject>& argument = {});
    static bool exists(const LightweightString<char>& name);
    // Every command's name, sorted.
    static std::vector<LightweightString<char>> names();
};
