#include "getEventInterceptStack.h"

FilterStack<Event>& getEventInterceptStack() {
    static FilterStack<Event> stack;
    return stack;
}
