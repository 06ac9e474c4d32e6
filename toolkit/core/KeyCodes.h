#pragma once

// Modifier keys: bits of a key code and of Event::modifiers().
namespace Modifiers {
// Cmd is the Command key of a Mac keyboard, the Super (Windows) key of others.
constexpr unsigned Cmd = 0x100000, Shift = 0x1000000, Control = 0x2000000, Alt = 0x4000000;
constexpr unsigned All = Cmd | Shift | Control | Alt;
} // namespace Modifiers

// Key codes. A key press carries one int: the key with the modifier bits held
// or'd in, so Shift+Tab is Tab | Modifiers::Shift (0x1000009). Keys that type a
// character are that character, letters as capitals; text itself arrives in text
// events, where any character may come. Keys that type nothing are Special plus
// the key's PC (set 1) scan code. The bits of the two never meet: characters stay
// below Modifiers::Cmd.
namespace Keys {
constexpr int Backspace = 8, Tab = 9, Return = 13, Escape = 27, Space = 32, Delete = 127;
constexpr int CharacterLimit = static_cast<int>(Modifiers::Cmd);
constexpr int Special = 0x8000000;
constexpr int Home = Special + 0x47, Up = Special + 0x48, PageUp = Special + 0x49, Left = Special + 0x4B;
constexpr int Right = Special + 0x4D, End = Special + 0x4F, Down = Special + 0x50, PageDown = Special + 0x51;
constexpr int Insert = Special + 0x52, KeypadEnter = Special + 0x1C;
constexpr int F1 = Special + 0x3B, F2 = F1 + 1, F3 = F1 + 2, F4 = F1 + 3, F5 = F1 + 4, F6 = F1 + 5;
constexpr int F7 = F1 + 6, F8 = F1 + 7, F9 = F1 + 8, F10 = F1 + 9, F11 = Special + 0x57, F12 = Special + 0x58;

// A text edit command as a text box's handleKeyboardEvent receives it: EditCommand
// with the Control shortcut that usually gives it, whichever keys the user pressed
// (Ctrl+V, Cmd+V and Shift+Insert all give Paste, 0x22000056).
constexpr int EditCommand = 0x20000000;
constexpr int editCommand(char letter) { return EditCommand | static_cast<int>(Modifiers::Control) | letter; }
constexpr int Cut = editCommand('X'), Copy = editCommand('C'), Paste = editCommand('V');
constexpr int SelectAll = editCommand('A'), Undo = editCommand('Z'), Redo = editCommand('Y');

// The edit command that a key press gives (Ctrl or Cmd with A, C, X, V, Z or Y;
// Shift+Insert, Ctrl+Insert, Shift+Delete), or the code itself when it gives none.
int editCommandFor(int code);
// The key of a code without its modifier bits, and the modifier bits alone.
constexpr int plain(int code) { return code & ~static_cast<int>(Modifiers::All); }
constexpr unsigned modifiersOf(int code) { return static_cast<unsigned>(code) & Modifiers::All; }
// A key that types a character (not a control character).
constexpr bool isPrintable(int code) { return code >= Space && code != Delete && code < CharacterLimit; }
} // namespace Keys
