#pragma once

// How far along a user's change is: a drag sends intermediate values, then a final one.
enum DataChangeType { kFinalChange = 0, kIntermediateChange = 1 };
