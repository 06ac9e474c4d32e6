#pragma once

class Glob;

// Takes a child out of sight now and deletes it at the next safe moment, so that a
// widget whose own callback or notice is still running is not deleted under it:
// it is hidden, loses its name (find() passes it over) and takes no more input.
void destroyAfterCall(Glob* g);
