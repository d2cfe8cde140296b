// Reads the output of tools that look into the built libraries.
#pragma once

#include <cstdio>
#include <stdexcept>
#include <string>

namespace harness {

template <class Visit>
void forEachOutputLine(const std::string& command, const Visit& visit) {
    FILE* output = popen(command.c_str(), "r");
    if (output == nullptr) throw std::runtime_error(command);
    std::string line;
    for (int character; (character = std::fgetc(output)) != EOF;) {
        if (character != '\n') {
            line += static_cast<char>(character);
            continue;
        }
        visit(line);
        line.clear();
    }
    if (pclose(output) != 0) throw std::runtime_error(command);
}

} // namespace harness
