#include "player_main.h"

int main(int argc, char** argv)
{
    return zuvo_player_main(argc, argv);
}
