#include "platform/RuntimeError.h"

namespace platform {

const char* describe(Failure number) {
    switch (number) {
    case InvalidCall:
        return "Invalid procedure call or argument";
    case Overflow:
        return "Overflow";
    case OutOfMemory:
        return "Out of memory";
    case SubscriptOutOfRange:
        return "Subscript out of range";
    case TypeMismatch:
        return "Type mismatch";
    case FileNotFound:
        return "File not found";
    case DeviceError:
        return "Device I/O error";
    case DiskFull:
        return "Disk full";
    case PastEndOfFile:
        return "Input past end of file";
    case PermissionDenied:
        return "Permission denied";
    case PathAccess:
        return "Path/File access error";
    case PathNotFound:
        return "Path not found";
    case NoSuchElement:
        return "Control array element doesn't exist";
    case InvalidArrayIndex:
        return "Invalid property array index";
    case PrinterError:
        return "Printer error";
    }
    return "Application-defined or object-defined error";
}

} // namespace platform
