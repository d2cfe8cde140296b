/** @file program.h  What the examples' main functions share: options, faults and exit codes. */
#pragma once

#include <CLI/CLI.hpp>

#include <cstdio>
#include <exception>
#include <new>

inline void add_threads(CLI::App& app, int& threads, const char* description) {
    app.add_option("--threads", threads, description)
        ->check(CLI::Range(1, 256))
        ->capture_default_str();
}

/// Runs a program with its options from the command line. A fault becomes one line on stderr.
template <class Options>
int run_program(const char* name, const char* description, int argc, char** argv,
                void (*add_options)(CLI::App&, Options&), void (*run)(const Options&)) {
    const auto fail = [name](const char* fault) {
        std::fprintf(stderr, "%s: %s\n", name, fault);
        return 1;
    };
    try {
        Options options;
        CLI::App app(description, name);
        add_options(app, options);
        try {
            app.parse(argc, argv);
        } catch (const CLI::CallForHelp& help) {
            return app.exit(help);
        }
        run(options);
        return 0;
    } catch (const std::bad_alloc&) {
        return fail("not enough memory");
    } catch (const std::exception& error) {
        return fail(error.what());
    }
}
