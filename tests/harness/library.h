// The built library in its variants, one for each processor level, side by side in one process.
#pragma once

#include "harness/function.h"

namespace harness {

// What is passed for one argument; the bytes of a constant in their own type.
union Value {
    void* pointer;
    std::int32_t number;
    double constant; // whose bytes may be those of a float
};

class Library {
public:
    explicit Library(const std::string& path);

    // Calls a function by its name. `description` is printed if the call crashes.
    std::int32_t call(const Function& function, const std::vector<Value>& values,
                      const std::string& description) const;
    void* symbol(const std::string& name) const;
    const std::string& path() const { return path_; }

private:
    std::string path_;
    void* handle_;
};

// Paths of all variants that were built, the baseline first.
std::vector<std::string> libraryPaths();
std::string settingsLibraryPath();

// The variants that this processor runs.
const std::vector<Library>& libraries();

} // namespace harness
