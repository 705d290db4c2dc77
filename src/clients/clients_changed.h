#pragma once

// What happened to the clients of the database. Record numbers that somebody holds follow it in one place.
struct ClientsChanged {
    enum What {
        appended, // behind the others, whose numbers stand
        modified, // client `number`
        removed,  // client `number`; those behind it moved down by one
        replaced  // nobody is who he was
    } what;
    int number = 0;
    // Whether a number that was held before may name somebody else now.
    bool movesNumbers() const { return what == removed || what == replaced; }
};
