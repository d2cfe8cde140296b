// The frame of the benchmarks. A family is a function that sets up rows and hands each to the
// session, which measures the contenders of the row against each other and prints a table line.
//
// Contenders take turns in random order, a sample each per round. What is told is the median over
// the rounds, and ratios are medians of the ratios within a round: a machine that is slower for a
// while is slower for all.
#pragma once

#include <fstream>
#include <functional>
#include <regex>
#include <string>
#include <vector>

namespace bench {

enum class Role {
    library, // one per row
    peer,
    limit, // the practical limit: the operation on data that are laid out for it
    bound  // the time of one resource alone; the slowest of a row's bounds is its roofline
};

struct Contender {
    std::string name; // one of the family's columns
    Role role;
    std::function<bool()> run; // the operation on all objects; false if it failed
};

inline void append(std::vector<Contender>& contenders, const std::vector<Contender>& others) {
    contenders.insert(contenders.end(), others.begin(), others.end());
}

enum class Memory { cached, streamed };

// What a row measures. Bytes are those that one object reads and writes, operations its floating
// point operations, 0 where the number means nothing.
struct Subject {
    std::string operation;
    std::string placement;
    Memory memory;
    std::string type;
    int size;
    int count;
    double bytes;
    double operations;
};

// As many objects as the cache next to a core holds, or far more than any cache.
inline int countFor(Memory memory, double bytesPerObject) {
    const double footprint = memory == Memory::cached ? 256 << 10 : 256 << 20;
    return static_cast<int>(footprint / bytesPerObject);
}

struct Settings {
    std::regex only{""};
    std::string csv;
    int rounds = 51;
    double sampleSeconds = 2e-4; // short: most samples fall between two interruptions
};

// The tables that a source adds to the program.
class Session;
struct Family {
    std::string name;
    std::vector<std::string> columns; // names of contenders
    std::function<void(Session&)> run;
};
std::vector<Family>& families();
struct Registration {
    explicit Registration(const Family& family) { families().push_back(family); }
};

class Session {
public:
    explicit Session(Settings chosen);

    void run(const Family& family);
    bool wants(const Subject& subject) const;
    // takeResult gives a number that depends on all results of a run, and clears them.
    void measure(const Subject& subject, const std::vector<Contender>& contenders,
                 const std::function<double()>& takeResult);

private:
    void printHeader();

    Settings settings;
    std::ofstream csv;
    const Family* current = nullptr;
    bool hasHeader = false;
};

} // namespace bench
