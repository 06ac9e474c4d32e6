#pragma once

// How a change of value came about (NUMBERS.md). A drag sends kChangeStart at the
// press, kIntermediateChange as it moves and kFinalChange at the release; a change
// made in one step (a key, a click on a step, a commit) is a kFinalChange too.
// kResetChange puts a control back at its rest value (a click beside a colour
// wheel's marker); kRelayedChange is a compound widget passing on a change of one
// of its parts without saying which kind it was.
enum DataChangeType { kChangeStart = 0, kIntermediateChange = 1, kFinalChange = 2, kResetChange = 3, kRelayedChange = 4 };
