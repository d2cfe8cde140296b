#include "harness/library.h"

#include <csignal>
#include <dlfcn.h>
#include <ffi.h>
#include <filesystem>
#include <stdexcept>
#include <unistd.h>

namespace harness {
namespace {

const std::string* runningCall = nullptr;

// A crash, on a guard page for example, has to tell which call it was.
void reportCrash(int signal) {
    if (runningCall != nullptr) {
        [[maybe_unused]] const auto written =
            write(STDERR_FILENO, runningCall->data(), runningCall->size());
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

[[noreturn]] void failToLoad() {
    throw std::runtime_error(dlerror()); // NOLINT(concurrency-mt-unsafe)
}

bool runsHere([[maybe_unused]] const std::string& path) {
#if defined(__x86_64__)
    if (path.find("x86-64-v3") != std::string::npos) {
        return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") &&
               __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2");
    }
    if (path.find("x86-64-v4") != std::string::npos) {
        return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512dq") &&
               __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512vl") &&
               __builtin_cpu_supports("avx512cd");
    }
#endif
    return true;
}

ffi_type* typeOf(const Argument& argument, int elementSize) {
    if (argument.meaning == Argument::pointer) return &ffi_type_pointer;
    if (argument.meaning != Argument::value) return &ffi_type_sint32;
    return elementSize == 4 ? &ffi_type_float : &ffi_type_double;
}

} // namespace

Library::Library(const std::string& path)
    : path_(path), handle_(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (handle_ == nullptr) failToLoad();
}

void* Library::symbol(const std::string& name) const {
    void* address = dlsym(handle_, name.c_str());
    if (address == nullptr) failToLoad();
    return address;
}

std::int32_t Library::call(const Function& function, const std::vector<Value>& values,
                           const std::string& description) const {
    std::vector<ffi_type*> types;
    std::vector<void*> addresses;
    for (std::size_t k = 0; k < values.size(); ++k) {
        types.push_back(typeOf(function.arguments[k], function.elementSize));
        addresses.push_back(const_cast<Value*>(&values[k]));
    }
    ffi_cif interface;
    if (values.size() != function.arguments.size() ||
        ffi_prep_cif(&interface, FFI_DEFAULT_ABI, static_cast<unsigned>(types.size()),
                     &ffi_type_sint32, types.data()) != FFI_OK) {
        throw std::invalid_argument("arguments of " + function.name);
    }
    const std::string crash = "crash in " + description + "\n";
    runningCall = &crash;
    ffi_arg status = 0;
    ffi_call(&interface, FFI_FN(symbol(function.name)), &status, addresses.data());
    runningCall = nullptr;
    return static_cast<std::int32_t>(status);
}

std::vector<std::string> libraryPaths() {
    const std::filesystem::path baseline = QORM_LIBRARY;
    std::vector<std::string> paths = {baseline};
    for (const char* level : {"x86-64-v3", "x86-64-v4"}) {
        const auto path = baseline.parent_path() / "glibc-hwcaps" / level / baseline.filename();
        if (std::filesystem::exists(path)) paths.push_back(path);
    }
    return paths;
}

std::string settingsLibraryPath() {
    return QORCORE_LIBRARY;
}

const std::vector<Library>& libraries() {
    static const std::vector<Library> runnable = [] {
        for (const int signal : {SIGSEGV, SIGBUS, SIGILL, SIGFPE}) std::signal(signal, reportCrash);
        std::vector<Library> opened;
        for (const std::string& path : libraryPaths()) {
            if (runsHere(path)) opened.emplace_back(path);
        }
        return opened;
    }();
    return runnable;
}

} // namespace harness
