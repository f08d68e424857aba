#pragma once
// A very small SVG writer for the example's two pictures: lines, dots and labels in a fixed-size canvas.
// QXmlStreamWriter escapes the text and closes every element, so the file is always well-formed XML.
#include <QFile>
#include <QPointF>
#include <QString>
#include <QVector>
#include <QXmlStreamWriter>

class SvgPicture {
public:
    /// Collects elements in memory on a white canvas; nothing is written until `bSave`.
    SvgPicture(int iWidth, int iHeight) : xml(&document)
    {
        xml.setAutoFormatting(true);
        xml.writeStartDocument();
        xml.writeStartElement(QStringLiteral("svg"));
        xml.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
        xml.writeAttribute(QStringLiteral("width"), QString::number(iWidth));
        xml.writeAttribute(QStringLiteral("height"), QString::number(iHeight));
        xml.writeAttribute(QStringLiteral("font-family"), QStringLiteral("sans-serif"));
        xml.writeAttribute(QStringLiteral("font-size"), QStringLiteral("13"));
        xml.writeEmptyElement(QStringLiteral("rect"));
        xml.writeAttribute(QStringLiteral("width"), QStringLiteral("100%"));
        xml.writeAttribute(QStringLiteral("height"), QStringLiteral("100%"));
        xml.writeAttribute(QStringLiteral("fill"), QStringLiteral("white"));
    }

    void vPolyline(QVector<QPointF> const& points, QString const& colour, double dWidth)
    {
        QString coordinates;
        for (QPointF const& p : points)
            coordinates += QStringLiteral("%1,%2 ").arg(p.x(), 0, 'f', 2).arg(p.y(), 0, 'f', 2);
        xml.writeEmptyElement(QStringLiteral("polyline"));
        xml.writeAttribute(QStringLiteral("points"), coordinates.trimmed());
        xml.writeAttribute(QStringLiteral("fill"), QStringLiteral("none"));
        xml.writeAttribute(QStringLiteral("stroke"), colour);
        xml.writeAttribute(QStringLiteral("stroke-width"), QString::number(dWidth));
    }

    void vDot(QPointF const& centre, double dRadius, QString const& colour)
    {
        xml.writeEmptyElement(QStringLiteral("circle"));
        xml.writeAttribute(QStringLiteral("cx"), QString::number(centre.x(), 'f', 2));
        xml.writeAttribute(QStringLiteral("cy"), QString::number(centre.y(), 'f', 2));
        xml.writeAttribute(QStringLiteral("r"), QString::number(dRadius));
        xml.writeAttribute(QStringLiteral("fill"), colour);
    }

    /// `anchor` is SVG's text-anchor: "start", "middle" or "end".
    void vText(QPointF const& at, QString const& text, QString const& anchor = QStringLiteral("start"))
    {
        xml.writeStartElement(QStringLiteral("text"));
        xml.writeAttribute(QStringLiteral("x"), QString::number(at.x(), 'f', 2));
        xml.writeAttribute(QStringLiteral("y"), QString::number(at.y(), 'f', 2));
        xml.writeAttribute(QStringLiteral("text-anchor"), anchor);
        xml.writeCharacters(text);
        xml.writeEndElement();
    }

    /// Closes the document and writes it to `path`; false when the file cannot be written. Call once.
    bool bSave(QString const& path)
    {
        xml.writeEndDocument();
        QFile file(path);
        QByteArray const utf8 = document.toUtf8();
        return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(utf8) == utf8.size();
    }

private:
    QString document;
    QXmlStreamWriter xml;
};
