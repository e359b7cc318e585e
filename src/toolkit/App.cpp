#include "toolkit/App.h"

namespace toolkit {

AppObject App;

AppObject::AppObject() : Major(VERSION_MAJOR), Minor(VERSION_MINOR), Revision(VERSION_REVISION) {}

} // namespace toolkit
