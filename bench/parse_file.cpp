// Parses a document as Qt alone does, in a process of its own.
#include <QtCore/QFile>
#include <QtXml/QDomDocument>

int main(int argc, char** argv)
{
    QFile file(argc == 2 ? QString::fromLocal8Bit(argv[1]) : QString());
    return file.open(QIODevice::ReadOnly) && QDomDocument().setContent(&file) ? 0 : 1;
}
