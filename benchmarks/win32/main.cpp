// usage: velkarix_bench FILE PROGRAM [SECONDS]
// FILE is hashed; SECONDS is what `openssl md5` of the same file takes on the host. PROGRAM is what
// startup items and installed applications lead to.
#include <cstdio>
#include <cstdlib>

#include "Benchmarks.h"

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: velkarix_bench FILE PROGRAM [SECONDS]\n");
        return 2;
    }
    // Each figure is to be read when it comes, also where the output goes to a file.
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    const bool digested = velkarix::MeasureFileDigest(argv[1], argc > 3 ? std::atof(argv[3]) : 0);
    const bool filled = velkarix::MeasurePages(argv[2]);
    const bool listed = velkarix::MeasureDomains();
    const bool isProtected = velkarix::MeasureActiveX();
    return digested && filled && listed && isProtected ? 0 : 1;
}
