#include "pos/printing/slips/SlipArchive.h"
#include "pos/printing/slips/SlipQueue.h"

#include <QCoreApplication>
#include <QTextStream>
#include <QTimer>

/**
 * A till that prints slips until it is killed, or, with "takeover", one that takes over the slips of dead tills and
 * ends when no slip is waiting.
 */
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    SlipArchive::instance()->setFolder(arguments.value(1));
    SlipQueue* queue = SlipQueue::instance();
    if (arguments.value(2) == "takeover") {
        queue->takeOver();
        const auto endWhenDone = [queue] {
            if (queue->waitingPrinters().isEmpty())
                QCoreApplication::exit(0);
        };
        QObject::connect(queue, &SlipQueue::waitingChanged, queue, endWhenDone);
        QTimer::singleShot(0, queue, endWhenDone);
        return QCoreApplication::exec();
    }
    QTextStream(stdout) << "ready" << Qt::endl;
    for (int i = 0;; ++i) {
        SlipPurpose purpose;
        purpose.kind = KeptSlip::Kitchen;
        const QByteArray text = "slip " + arguments.value(2).toUtf8() + '-' + QByteArray::number(i) + '\n';
        if (!queue->handOver({{purpose, "Kasir", "Menu", text}}).first().isGood())
            return 1;
    }
}
