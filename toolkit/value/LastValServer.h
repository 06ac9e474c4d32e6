#pragma once

/// Every value server passes through here as it is made. Nothing reads it yet; it
/// is the place to record servers, for example for a debugger.
class LastValServer {
protected:
    void getLastValServer() {}
};
