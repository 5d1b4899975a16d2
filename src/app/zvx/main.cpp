#include "shell/main_sequence.h"

int main(int argc, char** argv) {
    return zvx::Main(argc, argv);
}
