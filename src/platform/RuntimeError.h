// A step that fails at run time throws a RuntimeError: a number that the program's routines look
// at, and a description that its user reads.
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace platform {

// The numbers in use.
enum Failure : int {
    InvalidCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    FileNotFound = 53,
    DeviceError = 57,
    DiskFull = 61,
    PastEndOfFile = 62,
    PermissionDenied = 70,
    PathAccess = 75,
    PathNotFound = 76,
    NoSuchElement = 340,
    InvalidArrayIndex = 381,
    PrinterError = 482,
};

// What each number says to the user.
const char* describe(Failure number);

struct RuntimeError : std::exception {
    explicit RuntimeError(Failure which) : RuntimeError(which, describe(which)) {}
    RuntimeError(int theNumber, std::string theDescription)
        : number(theNumber), description(std::move(theDescription)) {}

    const char* what() const noexcept override { return description.c_str(); }

    int number;
    std::string description;
};

} // namespace platform
