#include "shell/ZavelApplication.h"

int main(int argc, char** argv)
{
    ZavelApplication application(argc, argv);
    return application.run();
}
