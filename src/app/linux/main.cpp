#include "app/Client.h"

int main(int argc, char** argv) {
    return corvane::runClient(argc, argv);
}
