#pragma once

template <class T>
class ValServer;

/// The notice of a value server: its type, the value at the time, and the server.
template <class T>
struct NotifierEvent {
    int type = 0;
    T value{};
    ValServer<T>* sender = nullptr;
};
