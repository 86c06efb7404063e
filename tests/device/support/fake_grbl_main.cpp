// A GRBL controller on a pseudo-terminal, for trying the window by hand.
//
//   lumitra_fake_grbl [MS_PER_LINE] [MS_PER_MM]
//
// Prints the port to connect to, then runs until stdin closes. Commands on
// stdin, one per line: "alarm" raises ALARM:1, "unplug" closes the far end,
// "status" prints the head's position and queued blocks. Motion takes
// MS_PER_LINE (default 20) per block plus MS_PER_MM (default 10) per mm.
#include "grbl_fake.h"

#include <QCoreApplication>
#include <cstdlib>
#include <iostream>
#include <string>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    GrblFake::Options options;
    options.motionMsPerLine = argc > 1 ? std::atoi(argv[1]) : 20;
    options.msPerMm = argc > 2 ? std::atof(argv[2]) : 10.0;
    options.recordLines = false;
    GrblFake fake(options);
    if (!fake.start()) {
        std::cerr << "no pseudo-terminal available\n";
        return 1;
    }
    std::cout << fake.portName().toStdString() << std::endl;
    std::string command;
    while (std::getline(std::cin, command)) {
        if (command == "alarm") {
            fake.raiseAlarm(1);
        } else if (command == "unplug") {
            fake.closeFarEnd();
        } else if (command == "status") {
            const QPointF p = fake.position();
            std::cout << "at " << p.x() << "," << p.y() << ", " << fake.blocksQueued()
                      << " blocks queued, " << fake.executedMoves().size() << " run" << std::endl;
        } else if (!command.empty()) {
            std::cout << "commands: alarm, unplug, status" << std::endl;
        }
    }
    return 0;
}
