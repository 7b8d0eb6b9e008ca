// usage: velkarix_bench FILE [SECONDS]
// FILE is hashed; SECONDS is what `openssl md5` of the same file takes on the host.
#include <cstdio>
#include <cstdlib>

#include "Benchmarks.h"

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: velkarix_bench FILE [SECONDS]\n");
        return 2;
    }
    // Each figure is to be read when it comes, also where the output goes to a file.
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    const bool digested = velkarix::MeasureFileDigest(argv[1], argc > 2 ? std::atof(argv[2]) : 0);
    const bool listed = velkarix::MeasureDomains();
    return digested && listed ? 0 : 1;
}
