#include "KeyCodes.h"

int Keys::editCommandFor(int code) {
    const unsigned mods = modifiersOf(code);
    int key = plain(code);
    if (key >= 'a' && key <= 'z') key += 'A' - 'a';
    const bool command = (mods & (Modifiers::Control | Modifiers::Cmd)) && !(mods & Modifiers::Alt);
    if (command) {
        switch (key) {
        case 'A': return SelectAll;
        case 'C': return Copy;
        case 'X': return Cut;
        case 'V': return Paste;
        case 'Z': return (mods & Modifiers::Shift) ? Redo : Undo;
        case 'Y': return Redo;
        case Insert: return Copy;
        default: return code;
        }
    }
    if (mods == Modifiers::Shift && key == Insert) return Paste;
    if (mods == Modifiers::Shift && key == Delete) return Cut;
    return code;
}
