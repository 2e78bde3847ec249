// Keeps the libraries below SDL from writing to standard error while something is tried that may
// fail; what has failed is then said in one line of ours.
#pragma once

namespace ombrel {

// For a block. Standard error goes nowhere, of the whole process.
class QuietErrors {
public:
    QuietErrors();
    ~QuietErrors();
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;

private:
    int saved_; // below 0: nothing was changed
};

} // namespace ombrel
