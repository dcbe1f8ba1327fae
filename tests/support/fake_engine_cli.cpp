#include "fake_engine.h"

int main(int argc, char** argv)
{
    return fake_engine_run(argc, argv);
}
