#include "application.h"

int main(int argc, char **argv)
{
    return lumitra::run_application(argc, argv);
}
