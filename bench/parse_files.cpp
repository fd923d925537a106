// Parses documents as Qt alone does, one after another, in a process of its own.
#include <QtCore/QFile>
#include <QtXml/QDomDocument>

int main(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        QFile file(QString::fromLocal8Bit(argv[i]));
        if (!file.open(QIODevice::ReadOnly) || !QDomDocument().setContent(&file))
            return 1;
    }
    return argc > 1 ? 0 : 1;
}
