#include "engine_main.h"

int main(int argc, char** argv)
{
    return zuvo_engine_main(argc, argv);
}
