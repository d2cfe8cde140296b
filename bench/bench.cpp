#include "bench.h"

#include "qorm.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <fstream>
#include <limits>
#include <numeric>
#include <random>
#include <stdexcept>
#include <thread>
#include <utility>

namespace bench {

std::vector<Family>& families() {
    static std::vector<Family> all;
    return all;
}

namespace {

using Clock = std::chrono::steady_clock;

[[noreturn]] void fail(const std::string& what) {
    throw std::runtime_error(what);
}

const char* nameOf(Memory memory) {
    return memory == Memory::cached ? "cached" : "streamed";
}

std::string labelOf(const Subject& subject) {
    return subject.operation + " " + subject.placement + " " + nameOf(subject.memory) + " " +
           std::to_string(subject.size) + " " + subject.type;
}

void run(const Contender& contender) {
    if (!contender.run()) fail(contender.name + " failed");
}

// Of a sample; one of several calls stands behind a call that fills the caches.
double secondsOf(const Contender& contender, int calls) {
    if (calls > 1) run(contender);
    const auto begin = Clock::now();
    for (int call = 0; call < calls; ++call) run(contender);
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

double medianOf(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double medianRatio(const std::vector<double>& times, const std::vector<double>& others) {
    std::vector<double> ratios(times.size());
    std::transform(times.begin(), times.end(), others.begin(), ratios.begin(), std::divides<>());
    return medianOf(ratios);
}

// Nanoseconds per object of every round, contender by contender.
std::vector<std::vector<double>> timesOf(const std::vector<Contender>& contenders,
                                         const Subject& subject, const Settings& settings) {
    // A streamed call is long enough for few rounds.
    const int rounds =
        subject.memory == Memory::streamed ? (settings.rounds + 4) / 5 : settings.rounds;
    std::vector<int> calls;
    for (const Contender& contender : contenders) {
        calls.push_back(1);
        while (secondsOf(contender, calls.back()) < settings.sampleSeconds) calls.back() *= 2;
    }
    std::vector<std::size_t> order(contenders.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::minstd_rand generator(1);
    std::vector<std::vector<double>> times(contenders.size());
    for (int round = 0; round < rounds; ++round) {
        std::shuffle(order.begin(), order.end(), generator);
        for (const std::size_t c : order) {
            const double objects = double{1e-9} * calls[c] * subject.count;
            times[c].push_back(secondsOf(contenders[c], calls[c]) / objects);
        }
    }
    return times;
}

// Of every round, the time of the slowest bound; empty if there is none.
std::vector<double> rooflineOf(const std::vector<Contender>& contenders,
                               const std::vector<std::vector<double>>& times) {
    std::vector<double> slowest;
    for (std::size_t c = 0; c < contenders.size(); ++c) {
        if (contenders[c].role != Role::bound) continue;
        slowest.resize(times[c].size());
        for (std::size_t round = 0; round < slowest.size(); ++round) {
            slowest[round] = std::max(slowest[round], times[c][round]);
        }
    }
    return slowest;
}

// The library and its peers get the same result.
void checkAgreement(const std::vector<Contender>& contenders,
                    const std::function<double()>& takeResult) {
    double expected = std::numeric_limits<double>::quiet_NaN();
    takeResult();
    for (const Contender& contender : contenders) {
        if (contender.role == Role::limit || contender.role == Role::bound) continue;
        run(contender);
        const double result = takeResult();
        if (std::isnan(expected)) expected = result;
        if (!(std::fabs(result - expected) <= 1e-4 * std::fabs(expected)) || result == 0) {
            fail(contender.name + " differs");
        }
    }
}

// The contender of the role with the least median, or none.
constexpr std::size_t none = static_cast<std::size_t>(-1);
std::size_t bestOf(Role role, const std::vector<Contender>& contenders,
                   const std::vector<double>& medians) {
    std::size_t best = none;
    for (std::size_t c = 0; c < contenders.size(); ++c) {
        if (contenders[c].role != role) continue;
        if (best == none || medians[c] < medians[best]) best = c;
    }
    return best;
}

std::string cell(double value) {
    if (!(value > 0)) return "-";
    char text[32];
    std::snprintf(text, sizeof text, value < 100 ? "%.3g" : "%.0f", value);
    return text;
}

void printMachine() {
    std::string processor = "unknown processor";
    std::ifstream information("/proc/cpuinfo");
    for (std::string line; std::getline(information, line);) {
        if (line.rfind("model name", 0) == 0) processor = line.substr(line.find(':') + 2);
    }
    Dl_info library = {};
    dladdr(dlsym(RTLD_DEFAULT, "qormGetLibVersion"), &library);
    std::printf("machine:  %s, %u threads\n", processor.c_str(),
                std::thread::hardware_concurrency());
    std::printf("peers:    gcc %s, %s\n", __VERSION__, BENCH_FLAGS);
    std::printf("library:  %s, %s\n", qormGetLibVersion()->versionText, library.dli_fname);
    std::printf("times:    ns per object, medians; GB/s and GFLOP/s are the library's\n");
    std::printf("ratios:   time of the library to that of the best peer, of the best limit, and of "
                "the\n          slowest bound, the roofline\n");
}

} // namespace

Session::Session(Settings chosen) : settings(std::move(chosen)) {
    printMachine();
    if (settings.csv.empty()) return;
    csv.open(settings.csv);
    if (!csv) fail("cannot write " + settings.csv);
    csv << "family,operation,placement,memory,type,size,count,contender,role,ns_per_object,"
           "quartile_range_ns,gb_per_s,gflop_per_s,ratio_to_best_peer,ratio_to_limit,ratio_to_"
           "roofline\n";
}

void Session::run(const Family& family) {
    current = &family;
    hasHeader = false;
    family.run(*this);
}

void Session::printHeader() {
    std::printf("\n%s\n\n| operation | placement | memory | size | type | count |",
                current->name.c_str());
    for (const std::string& column : current->columns) std::printf(" %s |", column.c_str());
    std::printf(" to peer | to limit | to roofline | GB/s | GFLOP/s |\n|");
    for (std::size_t column = 0; column < current->columns.size() + 11; ++column) {
        std::printf("---|");
    }
    std::printf("\n");
    hasHeader = true;
}

bool Session::wants(const Subject& subject) const {
    return std::regex_search(current->name + " " + labelOf(subject), settings.only);
}

void Session::measure(const Subject& subject, const std::vector<Contender>& contenders,
                      const std::function<double()>& takeResult) {
    checkAgreement(contenders, takeResult);
    const auto times = timesOf(contenders, subject, settings);
    std::vector<double> medians;
    medians.reserve(times.size());
    for (const auto& rounds : times) medians.push_back(medianOf(rounds));
    const std::size_t peer = bestOf(Role::peer, contenders, medians);
    const std::size_t limit = bestOf(Role::limit, contenders, medians);
    const auto ratioTo = [&](std::size_t other, std::size_t c) {
        return other == none ? 0 : medianRatio(times[c], times[other]);
    };
    const std::vector<double> roofline = rooflineOf(contenders, times);
    const auto ratioToRoofline = [&](std::size_t c) {
        return roofline.empty() ? 0 : medianRatio(times[c], roofline);
    };

    if (!hasHeader) printHeader();
    std::printf("| %s | %s | %s | %d | %s | %d |", subject.operation.c_str(),
                subject.placement.c_str(), nameOf(subject.memory), subject.size,
                subject.type.c_str(), subject.count);
    for (const std::string& column : current->columns) {
        const auto found =
            std::find_if(contenders.begin(), contenders.end(),
                         [&](const Contender& contender) { return contender.name == column; });
        const bool runs = found != contenders.end();
        std::printf(" %s |",
                    cell(runs ? medians[std::size_t(found - contenders.begin())] : 0).c_str());
    }
    const std::size_t library = bestOf(Role::library, contenders, medians);
    std::printf(" %s | %s | %s | %s | %s |\n", cell(ratioTo(peer, library)).c_str(),
                cell(ratioTo(limit, library)).c_str(), cell(ratioToRoofline(library)).c_str(),
                cell(subject.bytes / medians[library]).c_str(),
                cell(subject.operations / medians[library]).c_str());
    std::fflush(stdout);

    for (std::size_t c = 0; c < contenders.size() && csv.is_open(); ++c) {
        constexpr const char* roles[] = {"library", "peer", "limit", "bound"};
        std::vector<double> sorted = times[c];
        std::sort(sorted.begin(), sorted.end());
        csv << current->name << ',' << subject.operation << ',' << subject.placement << ','
            << nameOf(subject.memory) << ',' << subject.type << ',' << subject.size << ','
            << subject.count << ',' << contenders[c].name << ','
            << roles[static_cast<int>(contenders[c].role)] << ',' << medians[c] << ','
            << sorted[sorted.size() * 3 / 4] - sorted[sorted.size() / 4] << ','
            << subject.bytes / medians[c] << ',' << subject.operations / medians[c] << ','
            << ratioTo(peer, c) << ',' << ratioTo(limit, c) << ',' << ratioToRoofline(c) << '\n';
    }
}

} // namespace bench

int main(int argc, char** argv) {
    try {
        bench::Settings settings;
        for (int i = 1; i < argc; i += 2) {
            const std::string option = argv[i];
            const std::string value = i + 1 < argc ? argv[i + 1] : "";
            if (option == "--only" && !value.empty()) {
                settings.only = value;
            } else if (option == "--csv" && !value.empty()) {
                settings.csv = value;
            } else if (option == "--rounds" && std::atoi(value.c_str()) > 0) {
                settings.rounds = std::atoi(value.c_str());
            } else {
                std::fputs("usage: qorm_bench [--only REGEX] [--csv FILE] [--rounds N]\n"
                           "REGEX searches \"family operation placement memory size type\", for "
                           "example \"^sums .*mama packed.* 32f\"\n",
                           stderr);
                return 2;
            }
        }
        bench::Session session(settings);
        for (const bench::Family& family : bench::families()) session.run(family);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "qorm_bench: %s\n", error.what());
        return 1;
    }
    return 0;
}
