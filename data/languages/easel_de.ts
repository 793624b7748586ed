<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>QObject</name>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Direction in degrees, counter-clockwise; 0 is to the right:</source>
        <translation>Richtung in Grad, gegen den Uhrzeigersinn; 0 ist nach rechts:</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&amp;Share of the present opacity:</source>
        <translation>&amp;Anteil der jetzigen Deckkraft:</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> Bildpunkte</translation>
    </message>
    <message>
        <source> pixels per inch</source>
        <translation> Bildpunkte je Zoll</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Auflösung:</translation>
    </message>
    <message>
        <source>Picture Size</source>
        <translation>Bildgröße</translation>
    </message>
    <message>
        <source>Easel</source>
        <translation>Easel</translation>
    </message>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>Die Änderungen an „%1“ speichern?</translation>
    </message>
    <message>
        <source>Without saving, the changes since the last save are lost.</source>
        <translation>Ohne Speichern gehen die Änderungen seit dem letzten Speichern verloren.</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>SVG drawings (*.svg *.svgz);;All files (*)</source>
        <translation>SVG-Zeichnungen (*.svg *.svgz);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Kept %1</source>
        <translation>Aufbewahrt: %1</translation>
    </message>
    <message>
        <source> or </source>
        <translation> oder </translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Give a shape the current gradient</source>
        <translation>Einer Form den aktuellen Verlauf geben</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Klicken</translation>
    </message>
    <message>
        <source>Turn a linear gradient</source>
        <translation>Einen linearen Verlauf drehen</translation>
    </message>
    <message>
        <source>Drag (Shift: in steps of 15°)</source>
        <translation>Ziehen (Umschalt: in Schritten von 15°)</translation>
    </message>
    <message>
        <source>Move the center of a radial gradient</source>
        <translation>Den Mittelpunkt eines radialen Verlaufs versetzen</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>Drücken</translation>
    </message>
    <message>
        <source>Edit the gradient of a shape</source>
        <translation>Den Verlauf einer Form bearbeiten</translation>
    </message>
    <message>
        <source>Alt-click or Ctrl-click</source>
        <translation>Alt-Klick oder Strg-Klick</translation>
    </message>
    <message>
        <source>Copy the gradient of a shape</source>
        <translation>Den Verlauf einer Form kopieren</translation>
    </message>
    <message>
        <source>Alt-Shift-click</source>
        <translation>Alt-Umschalt-Klick</translation>
    </message>
    <message>
        <source>Edit the current gradient</source>
        <translation>Den aktuellen Verlauf bearbeiten</translation>
    </message>
    <message>
        <source>Double-click the tool</source>
        <translation>Doppelklick auf das Werkzeug</translation>
    </message>
    <message>
        <source>Zoom about the pointer</source>
        <translation>Um den Zeiger vergrößern</translation>
    </message>
    <message>
        <source>Ctrl and wheel</source>
        <translation>Strg und Mausrad</translation>
    </message>
    <message>
        <source>Move the view</source>
        <translation>Die Ansicht verschieben</translation>
    </message>
    <message>
        <source>Wheel, middle button, or Space and drag</source>
        <translation>Mausrad, mittlere Taste, oder Leertaste und ziehen</translation>
    </message>
    <message>
        <source>Break off a drag</source>
        <translation>Ein Ziehen abbrechen</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Escape</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>About Easel</source>
        <translation>Über Easel</translation>
    </message>
    <message>
        <source>Easel %1</source>
        <translation>Easel %1</translation>
    </message>
    <message>
        <source>Draws with gradients on SVG files.

The gradient tool is a plug-in; Easel is the host that it runs in.</source>
        <translation>Zeichnet mit Verläufen in SVG-Dateien.

Das Verlaufswerkzeug ist ein Zusatzmodul; Easel ist das Programm, in dem es läuft.</translation>
    </message>
    <message>
        <source>Opening %1 …</source>
        <translation>%1 wird geöffnet …</translation>
    </message>
    <message>
        <source>%1[*] — Easel</source>
        <translation>%1[*] – Easel</translation>
    </message>
    <message>
        <source>Opacity and ellipse stay as they are</source>
        <translation>Deckkraft und Ellipse bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>Opacity stays as it is</source>
        <translation>Die Deckkraft bleibt, wie sie ist</translation>
    </message>
    <message>
        <source>The ellipse stays as it is</source>
        <translation>Die Ellipse bleibt, wie sie ist</translation>
    </message>
    <message>
        <source>The focus of this gradient was not inside its circle. With this change it has moved there, so that the gradient looks a little different.</source>
        <translation>Der Brennpunkt dieses Verlaufs lag nicht in seinem Kreis. Mit dieser Änderung ist er dorthin gerückt, sodass der Verlauf etwas anders aussieht.</translation>
    </message>
    <message>
        <source>This gradient repeated more often than can be edited. With this change its colors run only once.</source>
        <translation>Dieser Verlauf wiederholte sich öfter, als sich bearbeiten lässt. Mit dieser Änderung laufen seine Farben nur einmal durch.</translation>
    </message>
    <message>
        <source>This gradient had no extent, so that only its last color showed. With this change that color is all that is left of it.</source>
        <translation>Dieser Verlauf hatte keine Ausdehnung, sodass nur seine letzte Farbe zu sehen war. Nach dieser Änderung ist diese Farbe alles, was von ihm bleibt.</translation>
    </message>
    <message>
        <source>%1

Easel runs without this tool.</source>
        <translation>%1

Easel läuft ohne dieses Werkzeug.</translation>
    </message>
    <message>
        <source>Printing %1 …</source>
        <translation>%1 wird gedruckt …</translation>
    </message>
    <message>
        <source>The printer cannot be started.</source>
        <translation>Der Drucker lässt sich nicht starten.</translation>
    </message>
    <message>
        <source>There is not enough memory to print this drawing.</source>
        <translation>Der Speicher reicht nicht, um diese Zeichnung zu drucken.</translation>
    </message>
    <message numerus="yes">
        <source>%n templates were added. The gradient editor lists them in its popup, and Edit &gt; Gradient &gt; Apply Template gives them to shapes.</source>
        <translation>
            <numerusform>%n Vorlage wurde hinzugefügt. Der Verlaufseditor führt sie in seinem Aufklappmenü auf, und Bearbeiten &gt; Verlauf &gt; Vorlage anwenden gibt sie Formen.</numerusform>
            <numerusform>%n Vorlagen wurden hinzugefügt. Der Verlaufseditor führt sie in seinem Aufklappmenü auf, und Bearbeiten &gt; Verlauf &gt; Vorlage anwenden gibt sie Formen.</numerusform>
        </translation>
    </message>
    <message>
        <source>You have no gradient templates yet. Would you like a dozen to begin with, such as a sky, gold and wood?</source>
        <translation>Noch gibt es keine Verlaufsvorlagen. Sollen es für den Anfang ein Dutzend sein, etwa Himmel, Gold und Holz?</translation>
    </message>
    <message>
        <source>&amp;Add Starter Templates</source>
        <translation>Vorlagen &amp;hinzufügen</translation>
    </message>
    <message>
        <source>No &amp;Thanks</source>
        <translation>&amp;Nein, danke</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>Two coordinates, and what stands between them where a comma is the decimal sign</extracomment>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>The field is empty.</source>
        <translation>Das Feld ist leer.</translation>
    </message>
    <message>
        <source>“%1” is empty.</source>
        <translation>„%1“ ist leer.</translation>
    </message>
    <message>
        <source>%1 Type something, or choose Cancel.</source>
        <translation>%1 Etwas eintippen oder Abbrechen wählen.</translation>
    </message>
    <message>
        <source>Gradient Tool</source>
        <translation>Verlaufswerkzeug</translation>
    </message>
    <message>
        <source>Select Tool</source>
        <translation>Auswahlwerkzeug</translation>
    </message>
    <message>
        <source>Select a shape</source>
        <translation>Eine Form auswählen</translation>
    </message>
    <message>
        <source>Select one more, or one less</source>
        <translation>Eine mehr oder eine weniger auswählen</translation>
    </message>
    <message>
        <source>Shift-click</source>
        <translation>Umschalt-Klick</translation>
    </message>
    <message>
        <source>Select several</source>
        <translation>Mehrere auswählen</translation>
    </message>
    <message>
        <source>Drag (Shift: in addition)</source>
        <translation>Ziehen (Umschalt: zusätzlich)</translation>
    </message>
    <message>
        <source>Any Tool</source>
        <translation>Jedes Werkzeug</translation>
    </message>
    <message>
        <source>Open drawings</source>
        <translation>Zeichnungen öffnen</translation>
    </message>
    <message>
        <source>Drop files on a window</source>
        <translation>Dateien auf ein Fenster fallen lassen</translation>
    </message>
    <message>
        <source>Gradient Editor</source>
        <translation>Verlaufseditor</translation>
    </message>
    <message>
        <source>Choose a color stop</source>
        <translation>Einen Farbstopp wählen</translation>
    </message>
    <message>
        <source>Click its marker</source>
        <translation>Auf seine Marke klicken</translation>
    </message>
    <message>
        <source>Add a color stop</source>
        <translation>Einen Farbstopp hinzufügen</translation>
    </message>
    <message>
        <source>Click the ramp elsewhere</source>
        <translation>Anderswo auf die Leiste klicken</translation>
    </message>
    <message>
        <source>Move a color stop</source>
        <translation>Einen Farbstopp verschieben</translation>
    </message>
    <message>
        <source>Drag its marker, or type its position</source>
        <translation>Seine Marke ziehen oder seine Position eintippen</translation>
    </message>
    <message>
        <source>Remove a color stop</source>
        <translation>Einen Farbstopp entfernen</translation>
    </message>
    <message>
        <source>Pull its marker down, or clear its position</source>
        <translation>Seine Marke nach unten ziehen oder seine Position leeren</translation>
    </message>
    <message>
        <source>Change the color of a stop</source>
        <translation>Die Farbe eines Stopps ändern</translation>
    </message>
    <message>
        <source>Click the color below the ramp</source>
        <translation>Auf die Farbe unter der Leiste klicken</translation>
    </message>
    <message>
        <source>Set the direction</source>
        <translation>Die Richtung setzen</translation>
    </message>
    <message>
        <source>Drag in the preview (Shift: in steps of 15°)</source>
        <translation>In der Vorschau ziehen (Umschalt: in Schritten von 15°)</translation>
    </message>
    <message>
        <source>Set the center</source>
        <translation>Den Mittelpunkt setzen</translation>
    </message>
    <message>
        <source>Press in the preview</source>
        <translation>In der Vorschau drücken</translation>
    </message>
    <message>
        <source>Find a template</source>
        <translation>Eine Vorlage finden</translation>
    </message>
    <message>
        <source>Open the popup and type its name</source>
        <translation>Das Aufklappmenü öffnen und ihren Namen tippen</translation>
    </message>
    <message>
        <source>Take back what is being dragged</source>
        <translation>Zurücknehmen, was gerade gezogen wird</translation>
    </message>
    <message>
        <source>Accept, or leave all as it was</source>
        <translation>Übernehmen oder alles lassen, wie es war</translation>
    </message>
    <message>
        <source>Return, Escape</source>
        <translation>Eingabe, Escape</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Vieleck</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Open path</source>
        <translation>Offener Pfad</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>%1 stops</source>
        <translation>%1 Stopps</translation>
    </message>
    <message>
        <source>linear gradient, %1, %2°</source>
        <translation>linearer Verlauf, %1, %2°</translation>
    </message>
    <message>
        <source>radial gradient, %1</source>
        <translation>radialer Verlauf, %1</translation>
    </message>
    <message>
        <source>%1 “%2”</source>
        <translation>%1 „%2“</translation>
    </message>
    <message>
        <source>no fill</source>
        <translation>keine Füllung</translation>
    </message>
    <message>
        <source>another fill</source>
        <translation>andere Füllung</translation>
    </message>
    <message>
        <source>Selected shape: give it the current gradient, if it has none</source>
        <translation>Gewählte Form: ihr den aktuellen Verlauf geben, wenn sie keinen hat</translation>
    </message>
    <message>
        <source>Selected shape: edit its gradient</source>
        <translation>Gewählte Form: ihren Verlauf bearbeiten</translation>
    </message>
    <message>
        <source>Selected shape: turn a linear gradient by 1°, move the center of a radial one by a pixel (Shift: to multiples of 15°, by ten)</source>
        <translation>Gewählte Form: einen linearen Verlauf um 1° drehen, den Mittelpunkt eines radialen um einen Bildpunkt versetzen (Umschalt: auf Vielfache von 15°, um zehn)</translation>
    </message>
    <message>
        <source>Direction %1°</source>
        <translation>Richtung %1°</translation>
    </message>
    <message>
        <source>Center at %1 % from the left and %2 % from the top</source>
        <translation>Mittelpunkt bei %1 % von links und %2 % von oben</translation>
    </message>
    <message>
        <source>Add a stop</source>
        <translation>Einen Stopp hinzufügen</translation>
    </message>
    <message>
        <source>Ramp: the stop before or after becomes active</source>
        <translation>Farbleiste: den Stopp davor oder danach wählen</translation>
    </message>
    <message>
        <source>Ramp: move the stop by a pixel (Shift: by ten)</source>
        <translation>Farbleiste: den Stopp um einen Bildpunkt verschieben (Umschalt: um zehn)</translation>
    </message>
    <message>
        <source>Ramp: move the stop by ten pixels</source>
        <translation>Farbleiste: den Stopp um zehn Bildpunkte verschieben</translation>
    </message>
    <message>
        <source>Ramp: move the stop to an end</source>
        <translation>Farbleiste: den Stopp an ein Ende verschieben</translation>
    </message>
    <message>
        <source>Ramp: add a stop after the active one</source>
        <translation>Farbleiste: nach dem gewählten Stopp einen hinzufügen</translation>
    </message>
    <message>
        <source>Ramp: remove the stop</source>
        <translation>Farbleiste: den Stopp entfernen</translation>
    </message>
    <message>
        <source>Ramp: choose the stop&apos;s color</source>
        <translation>Farbleiste: die Farbe des Stopps wählen</translation>
    </message>
    <message>
        <source>Preview: turn a linear gradient by 1°, move the center of a radial one by a pixel (Shift: to multiples of 15°, by ten)</source>
        <translation>Vorschau: einen linearen Verlauf um 1° drehen, den Mittelpunkt eines radialen um einen Bildpunkt versetzen (Umschalt: auf Vielfache von 15°, um zehn)</translation>
    </message>
    <message>
        <source>Preview: direction to the right, center in the middle</source>
        <translation>Vorschau: Richtung nach rechts, Mittelpunkt in die Mitte</translation>
    </message>
    <message>
        <source>Swatch: choose the stop&apos;s color</source>
        <translation>Farbfeld: die Farbe des Stopps wählen</translation>
    </message>
    <message>
        <source>Stop %1 of %2</source>
        <translation>Stopp %1 von %2</translation>
    </message>
    <message>
        <source>Choose the color</source>
        <translation>Die Farbe wählen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Keys in the Drawing</source>
        <translation>Tasten in der Zeichnung</translation>
    </message>
    <message>
        <source>Select the next shape, or the one before</source>
        <translation>Die nächste Form oder die davor wählen</translation>
    </message>
    <message>
        <source>Keys in the Gradient Editor</source>
        <translation>Tasten im Verlaufseditor</translation>
    </message>
    <message>
        <source>%1: there is not enough memory for that, and it was not done. The drawing is as it was before.</source>
        <translation>%1: Der Speicher reicht dafür nicht, und es wurde nicht getan. Die Zeichnung ist, wie sie vorher war.</translation>
    </message>
</context>
<context>
    <name>core</name>
    <message>
        <source>Some of the text is kept in the file but not shown.</source>
        <translation>Ein Teil des Textes bleibt in der Datei, wird aber nicht gezeigt.</translation>
    </message>
    <message>
        <source>Videos and canvases are kept in the file but not shown.</source>
        <translation>Videos und Zeichenflächen bleiben in der Datei, werden aber nicht gezeigt.</translation>
    </message>
    <message>
        <source>Pictures that are neither PNG, JPEG, GIF, WebP nor SVG are kept in the file but not shown.</source>
        <translation>Bilder, die weder PNG, JPEG, GIF, WebP noch SVG sind, bleiben in der Datei, werden aber nicht gezeigt.</translation>
    </message>
    <message>
        <source>Pictures that are damaged are kept in the file but not shown.</source>
        <translation>Beschädigte Bilder bleiben in der Datei, werden aber nicht gezeigt.</translation>
    </message>
    <message>
        <source>Pictures of more than 25 million pixels are kept in the file but not shown.</source>
        <translation>Bilder mit mehr als 25 Millionen Bildpunkten bleiben in der Datei, werden aber nicht gezeigt.</translation>
    </message>
    <message>
        <source>Pictures are read from the folder of the drawing and those below it, and from nowhere else.</source>
        <translation>Bilder werden aus dem Ordner der Zeichnung und denen darunter gelesen und von nirgendwo sonst.</translation>
    </message>
    <message>
        <source>Pictures in files that cannot be read are not shown.</source>
        <translation>Bilder in Dateien, die nicht gelesen werden können, werden nicht gezeigt.</translation>
    </message>
    <message>
        <source>Content in other languages than SVG is kept in the file but not shown.</source>
        <translation>Inhalt in anderen Sprachen als SVG bleibt in der Datei, wird aber nicht gezeigt.</translation>
    </message>
    <message>
        <source>Scripts are kept in the file but not run.</source>
        <translation>Skripte bleiben in der Datei, werden aber nicht ausgeführt.</translation>
    </message>
    <message>
        <source>Animations are kept in the file but not played.</source>
        <translation>Animationen bleiben in der Datei, werden aber nicht abgespielt.</translation>
    </message>
    <message>
        <source>Filters of other kinds than those of SVG and CSS are kept in the file but not applied.</source>
        <translation>Filter anderer Art als die von SVG und CSS bleiben in der Datei, werden aber nicht angewandt.</translation>
    </message>
    <message>
        <source>Masks other than mask elements are kept in the file but not applied.</source>
        <translation>Andere Masken als Maskenelemente bleiben in der Datei, werden aber nicht angewandt.</translation>
    </message>
    <message>
        <source>Vector effects other than strokes of fixed width are kept in the file but not applied.</source>
        <translation>Andere Vektoreffekte als Konturen fester Breite bleiben in der Datei, werden aber nicht angewandt.</translation>
    </message>
    <message>
        <source>Clip paths other than outlines are kept in the file but not applied.</source>
        <translation>Andere Ausschnitte als Umrisse bleiben in der Datei, werden aber nicht angewandt.</translation>
    </message>
    <message>
        <source>Style sheets outside the file are not read.</source>
        <translation>Stilvorlagen außerhalb der Datei werden nicht gelesen.</translation>
    </message>
    <message>
        <source>Content outside the file is not read.</source>
        <translation>Inhalt außerhalb der Datei wird nicht gelesen.</translation>
    </message>
    <message>
        <source>References that lead back to themselves are kept in the file but not followed.</source>
        <translation>Verweise, die auf sich selbst zurückführen, bleiben in der Datei, werden aber nicht verfolgt.</translation>
    </message>
    <message>
        <source>Shapes with numbers out of range are kept in the file but not shown.</source>
        <translation>Formen mit Zahlen außerhalb des Bereichs bleiben in der Datei, werden aber nicht gezeigt.</translation>
    </message>
    <message>
        <source>Groups and use elements nested very deep are kept in the file but not shown as such.</source>
        <translation>Sehr tief geschachtelte Gruppen und Wiederholungen bleiben in der Datei, werden aber nicht als solche gezeigt.</translation>
    </message>
    <message>
        <source>Gradients between colors in linear light are drawn between those of sRGB.</source>
        <translation>Verläufe zwischen Farben in linearem Licht werden zwischen denen von sRGB gezeichnet.</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>die Datei gibt es nicht</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>keine Datei</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>die Datei ist zu groß</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the file is larger than memory</source>
        <translation>die Datei ist größer als der Speicher</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>the file is too large when it is unpacked</source>
        <translation>die Datei ist entpackt zu groß</translation>
    </message>
    <message>
        <source>it is compressed, and what it holds is damaged or cut off</source>
        <translation>sie ist komprimiert, und ihr Inhalt ist beschädigt oder abgeschnitten</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>der Speicher reicht dafür nicht</translation>
    </message>
    <message>
        <source>there is not enough memory to write it</source>
        <translation>der Speicher reicht nicht, um sie zu schreiben</translation>
    </message>
    <message>
        <source>there is not enough memory for the picture</source>
        <translation>der Speicher reicht nicht für das Bild</translation>
    </message>
    <message>
        <source>it is not XML: it has no element</source>
        <translation>das ist kein XML: sie hat kein Element</translation>
    </message>
    <message>
        <source>it is not complete: it ends inside an element</source>
        <translation>sie ist nicht vollständig: sie endet mitten in einem Element</translation>
    </message>
    <message>
        <source>it is not XML: it holds characters that no text has</source>
        <translation>das ist kein XML: sie enthält Zeichen, die kein Text hat</translation>
    </message>
    <message>
        <source>it is XML, but not an SVG drawing</source>
        <translation>das ist XML, aber keine SVG-Zeichnung</translation>
    </message>
    <message>
        <source>it is not XML: an entity is defined by way of itself</source>
        <translation>das ist kein XML: eine Entität ist durch sich selbst definiert</translation>
    </message>
    <message>
        <source>its entities expand without measure</source>
        <translation>ihre Entitäten wachsen ins Maßlose</translation>
    </message>
    <message>
        <source>it repeats its shapes so often that they do not fit into memory</source>
        <translation>sie wiederholt ihre Formen so oft, dass der Speicher nicht reicht</translation>
    </message>
    <message>
        <source>it states more custom properties than fit into memory</source>
        <translation>sie nennt mehr eigene Eigenschaften, als in den Speicher passen</translation>
    </message>
    <message>
        <source>the name of a picture must end in .png, .pdf or .svg</source>
        <translation>der Name eines Bildes muss auf .png, .pdf oder .svg enden</translation>
    </message>
    <message>
        <source>no name for a temporary file could be found</source>
        <translation>für eine vorläufige Datei war kein Name zu finden</translation>
    </message>
    <message>
        <source>the trash holds too many files of that name</source>
        <translation>der Papierkorb enthält zu viele Dateien dieses Namens</translation>
    </message>
    <message>
        <source>not a plug-in: it has no MainEntry</source>
        <translation>kein Zusatzmodul: es hat kein MainEntry</translation>
    </message>
    <message>
        <source>it has no &lt;resources&gt;</source>
        <translation>sie hat kein &lt;resources&gt;</translation>
    </message>
    <message>
        <source>the name of a file cannot hold &apos;:&apos;</source>
        <translation>der Name einer Datei kann kein „:“ enthalten</translation>
    </message>
    <message>
        <source>the name of a file cannot begin with &apos;._&apos;</source>
        <translation>der Name einer Datei kann nicht mit „._“ beginnen</translation>
    </message>
    <message>
        <source>it cannot be the name of a file</source>
        <translation>so kann keine Datei heißen</translation>
    </message>
    <message>
        <source>its folder is not there</source>
        <translation>der Ordner dafür ist nicht da</translation>
    </message>
    <message>
        <source>not a name for a folder</source>
        <translation>so kann kein Ordner heißen</translation>
    </message>
    <message>
        <source>it has no name for the template folder</source>
        <translation>der Name des Vorlagenordners fehlt darin</translation>
    </message>
    <message>
        <source>its resources are damaged</source>
        <translation>ihre Ressourcen sind beschädigt</translation>
    </message>
    <message>
        <source>its resources are larger than a resource file can be</source>
        <translation>ihre Ressourcen sind größer, als eine Ressourcendatei sein kann</translation>
    </message>
    <message>
        <source>the defaults are larger than a resource file can be</source>
        <translation>die Voreinstellungen sind größer, als eine Ressourcendatei sein kann</translation>
    </message>
    <message>
        <source>the header file is cut short</source>
        <translation>die Kopfdatei ist abgeschnitten</translation>
    </message>
    <message>
        <source>it is no AppleDouble header file</source>
        <translation>sie ist keine AppleDouble-Kopfdatei</translation>
    </message>
    <message>
        <source>it has an AppleDouble version other than 1 and 2</source>
        <translation>ihre AppleDouble-Version ist weder 1 noch 2</translation>
    </message>
    <message>
        <source>an entry of the header file does not lie within it</source>
        <translation>ein Eintrag der Kopfdatei liegt außerhalb von ihr</translation>
    </message>
    <message>
        <source>entries of the header file overlap</source>
        <translation>Einträge der Kopfdatei überlappen sich</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>der Name ist vergeben</translation>
    </message>
    <message>
        <source>the compressor&apos;s output is not a deflate stream</source>
        <translation>was die Kompression ausgibt, ist kein Deflate-Strom</translation>
    </message>
    <message>
        <source>unknown error of the dynamic linker</source>
        <translation>unbekannter Fehler des dynamischen Linkers</translation>
    </message>
    <message>
        <source>It could not be read.</source>
        <translation>Das konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The change was not kept.</source>
        <translation>Die Änderung wurde nicht aufbewahrt.</translation>
    </message>
    <message>
        <source>The current gradient and templates will not be kept.</source>
        <translation>Der aktuelle Verlauf und Vorlagen werden nicht aufbewahrt.</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>Nichts wurde gespeichert.</translation>
    </message>
    <message>
        <source>it is no well-formed XML: %1</source>
        <translation>sie ist kein wohlgeformtes XML: %1</translation>
    </message>
    <message>
        <source>it is not well-formed XML (line %1)</source>
        <translation>sie ist kein wohlgeformtes XML (Zeile %1)</translation>
    </message>
    <message>
        <source>cannot be loaded: %1</source>
        <translation>lässt sich nicht laden: %1</translation>
    </message>
    <message>
        <source>the picture would have %1 by %2 pixels; no side can be longer than %3</source>
        <translation>das Bild hätte %1 mal %2 Pixel; keine Seite kann länger als %3 sein</translation>
    </message>
    <message>
        <source>a picture of %1 by %2 pixels needs %3 MB of memory, and %4 MB are free</source>
        <translation>ein Bild von %1 mal %2 Pixeln braucht %3 MB Speicher, und %4 MB sind frei</translation>
    </message>
    <message>
        <source>%1; nothing was saved</source>
        <translation>%1; nichts wurde gespeichert</translation>
    </message>
    <message>
        <source>it could not be opened again: %1</source>
        <translation>sie ließe sich nicht wieder öffnen: %1</translation>
    </message>
    <message>
        <source>it would hold %1 objects instead of %2</source>
        <translation>sie enthielte %1 Objekte statt %2</translation>
    </message>
    <message>
        <source>the fill of %1 would not be read back as it is now</source>
        <translation>die Füllung von %1 käme nicht so zurück, wie sie jetzt ist</translation>
    </message>
    <message>
        <source>the stroke of %1 would not be read back as it is now</source>
        <translation>die Kontur von %1 käme nicht so zurück, wie sie jetzt ist</translation>
    </message>
    <message>
        <source>object %1</source>
        <translation>Objekt %1</translation>
    </message>
    <message>
        <source>the object &quot;%1&quot;</source>
        <translation>Objekt „%1“</translation>
    </message>
    <message>
        <source>Fonts are read from the folder of the drawing and those below it, and from nowhere else.</source>
        <translation>Schriften werden aus dem Ordner der Zeichnung und denen darunter gelesen und von nirgendwo sonst.</translation>
    </message>
    <message>
        <source>Fonts that are damaged or of unknown kinds are replaced by others.</source>
        <translation>Beschädigte Schriften und solche unbekannter Art werden durch andere ersetzt.</translation>
    </message>
</context>
<context>
    <name>easel::window::Canvas</name>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
</context>
<context>
    <name>easel::window::ColorPicker</name>
    <message>
        <source>Exact values:</source>
        <translation>Genaue Werte:</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>%1, 16 bits</source>
        <translation>%1, 16 Bit</translation>
    </message>
    <message>
        <source>%1 from 0 to 65535</source>
        <translation>%1 von 0 bis 65535</translation>
    </message>
</context>
<context>
    <name>easel::window::DeletionWindow</name>
    <message>
        <source>Choose several with Shift or Ctrl. What is deleted goes to the trash.</source>
        <translation>Mehrere werden mit Umschalt oder Strg gewählt. Gelöschtes kommt in den Papierkorb.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>easel::window::EditItem</name>
    <message>
        <source>“%1” cannot be used here: names are kept in the Mac Roman alphabet.</source>
        <translation>„%1“ ist hier nicht möglich: Namen werden im Zeichensatz Mac Roman aufbewahrt.</translation>
    </message>
</context>
<context>
    <name>easel::window::GradientMenu</name>
    <message>
        <source>Gradien&amp;t</source>
        <translation>&amp;Verlauf</translation>
    </message>
    <message>
        <source>&amp;Copy Gradient</source>
        <translation>Verlauf &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste Gradient</source>
        <translation>Verlauf &amp;einfügen</translation>
    </message>
    <message>
        <source>Pick &amp;Up Gradient</source>
        <translation>Verlauf &amp;aufnehmen</translation>
    </message>
    <message>
        <source>&amp;Reverse</source>
        <translation>&amp;Umkehren</translation>
    </message>
    <message>
        <source>Rotate by &amp;90°</source>
        <translation>Um &amp;90° drehen</translation>
    </message>
    <message>
        <source>&amp;Angle…</source>
        <translation>&amp;Winkel …</translation>
    </message>
    <message>
        <source>Space Stops &amp;Evenly</source>
        <translation>Stopps gleichmäßig ver&amp;teilen</translation>
    </message>
    <message>
        <source>&amp;Opacity…</source>
        <translation>&amp;Deckkraft …</translation>
    </message>
    <message>
        <source>Ma&amp;ke Opaque</source>
        <translation>Deckend &amp;machen</translation>
    </message>
    <message>
        <source>&amp;Make Circular</source>
        <translation>K&amp;reisförmig machen</translation>
    </message>
    <message>
        <source>Apply Current &amp;Gradient</source>
        <translation>A&amp;ktuellen Verlauf anwenden</translation>
    </message>
    <message>
        <source>Re&amp;move Gradient</source>
        <translation>Verlauf ent&amp;fernen</translation>
    </message>
    <message>
        <source>P&amp;lain Color…</source>
        <translation>Ein&amp;farbig …</translation>
    </message>
    <message>
        <source>Apply &amp;Template</source>
        <translation>V&amp;orlage anwenden</translation>
    </message>
    <message>
        <source>&amp;Stroke Instead of Fill</source>
        <translation>Kontur &amp;statt Füllung</translation>
    </message>
    <message>
        <source>Plain color</source>
        <translation>Einfarbig</translation>
    </message>
</context>
<context>
    <name>easel::window::MainWindow</name>
    <message>
        <source>Until you save, changes are not safe from a crash: %1</source>
        <translation>Bis zum Speichern sind Änderungen nicht vor einem Absturz sicher: %1</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Pointer, from the drawing&apos;s top-left corner</source>
        <translation>Zeiger, von der linken oberen Ecke der Zeichnung aus</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Vergrößerung</translation>
    </message>
    <message>
        <source>Click or drag on a shape; hold Alt or Ctrl and click to edit its colors</source>
        <translation>Auf eine Form klicken oder ziehen; mit gedrückter Alt- oder Strg-Taste klicken, um ihre Farben zu bearbeiten</translation>
    </message>
    <message>
        <source>Click to select, Shift-click to add, drag to select several</source>
        <translation>Klicken wählt aus, mit Umschalt kommt hinzu, Ziehen wählt mehrere</translation>
    </message>
    <message>
        <source>There is no shape here that can carry a gradient</source>
        <translation>Hier ist keine Form, die einen Verlauf tragen kann</translation>
    </message>
    <message>
        <source>Current %1</source>
        <translation>%1 (aktuell)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Keep Mine</source>
        <translation>Meine behalten</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Speichern unter …</translation>
    </message>
    <message>
        <source>“%1” was changed by another program.</source>
        <translation>„%1“ wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>“%1” was deleted or renamed by another program.</source>
        <translation>„%1“ wurde von einem anderen Programm gelöscht oder umbenannt.</translation>
    </message>
    <message>
        <source>“%1” is write-protected.</source>
        <translation>„%1“ ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>“%1” is open in another window of Easel, too. What is saved there is not seen here before the file is read again.</source>
        <translation>„%1“ ist auch in einem anderen Fenster von Easel offen. Was dort gespeichert wird, ist hier erst zu sehen, wenn die Datei neu gelesen wird.</translation>
    </message>
    <message>
        <source>Read “%1” again?</source>
        <translation>„%1“ neu lesen?</translation>
    </message>
    <message>
        <source>The changes that are not saved are lost.</source>
        <translation>Die nicht gespeicherten Änderungen gehen verloren.</translation>
    </message>
    <message>
        <source>Go back to “%1” as it was opened?</source>
        <translation>Zu „%1“ zurückkehren, wie es geöffnet wurde?</translation>
    </message>
    <message>
        <source>All changes since then are lost, and cannot be undone. The file stays as it is until you save.</source>
        <translation>Alle Änderungen seitdem gehen verloren und lassen sich nicht zurückholen. Die Datei bleibt bis zum Speichern, wie sie ist.</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Zurückkehren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>If it is saved now, what the other program wrote is lost.</source>
        <translation>Wird jetzt gespeichert, geht verloren, was das andere Programm geschrieben hat.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>Ü&amp;berschreiben</translation>
    </message>
    <message>
        <source>It can still be replaced by a new file of the same name.</source>
        <translation>Sie kann trotzdem durch eine neue Datei desselben Namens ersetzt werden.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>E&amp;rsetzen</translation>
    </message>
    <message>
        <source>“%1” could not be saved: %2.</source>
        <translation>„%1“ konnte nicht gespeichert werden: %2.</translation>
    </message>
    <message>
        <source>The drawing stays as it is, with its changes unsaved.</source>
        <translation>Die Zeichnung bleibt, wie sie ist; ihre Änderungen sind nicht gespeichert.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source> exported</source>
        <translation> exportiert</translation>
    </message>
    <message>
        <source>Export as %1</source>
        <translation>Als %1 exportieren</translation>
    </message>
    <message>
        <source>%1 files (*.%2)</source>
        <translation>%1-Dateien (*.%2)</translation>
    </message>
    <message>
        <source>%1: this is the drawing itself. Export it under another name, or save it.</source>
        <translation>%1: das ist die Zeichnung selbst. Sie lässt sich unter einem anderen Namen exportieren oder speichern.</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 gibt es schon. Ersetzen?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Exporting %1 …</source>
        <translation>%1 wird exportiert …</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>%1 exportiert</translation>
    </message>
    <message>
        <source>Printed %1</source>
        <translation>%1 gedruckt</translation>
    </message>
    <message>
        <source>Click on a shape to copy its gradient; Escape lets it be</source>
        <translation>Auf eine Form klicken, um ihren Verlauf zu kopieren; Escape bricht ab</translation>
    </message>
    <message>
        <source>The gradient commands work on strokes</source>
        <translation>Die Verlaufsbefehle gelten den Konturen</translation>
    </message>
    <message>
        <source>The gradient commands work on fills</source>
        <translation>Die Verlaufsbefehle gelten den Füllungen</translation>
    </message>
    <message>
        <source>%1 of the Shape</source>
        <translation>%1 der Form</translation>
    </message>
    <message>
        <source>%1 of “%2”</source>
        <translation>%1 von „%2“</translation>
    </message>
    <message>
        <source>The gradient is copied</source>
        <translation>Der Verlauf ist kopiert</translation>
    </message>
    <message>
        <source>There is no gradient here to copy</source>
        <translation>Hier ist kein Verlauf zum Kopieren</translation>
    </message>
    <message>
        <source>A template has opaque colors and circles: the opacity and the ellipse of this gradient stay behind, with the shape.</source>
        <translation>Eine Vorlage hat deckende Farben und Kreise: Deckkraft und Ellipse dieses Verlaufs bleiben bei der Form zurück.</translation>
    </message>
    <message>
        <source>A template has opaque colors: the opacity of this gradient stays behind, with the shape.</source>
        <translation>Eine Vorlage hat deckende Farben: die Deckkraft dieses Verlaufs bleibt bei der Form zurück.</translation>
    </message>
    <message>
        <source>A template has circles: the ellipse of this gradient stays behind, with the shape.</source>
        <translation>Eine Vorlage hat Kreise: die Ellipse dieses Verlaufs bleibt bei der Form zurück.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>New drawing</source>
        <translation>Neue Zeichnung</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Open a drawing</source>
        <translation>Eine Zeichnung öffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the drawing</source>
        <translation>Die Zeichnung speichern</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>Save the drawing under another name</source>
        <translation>Die Zeichnung unter einem anderen Namen speichern</translation>
    </message>
    <message>
        <source>Re&amp;vert to Opened…</source>
        <translation>Zum &amp;Geöffneten zurückkehren …</translation>
    </message>
    <message>
        <source>Go back to the drawing as it was opened</source>
        <translation>Zur Zeichnung zurückkehren, wie sie geöffnet wurde</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>As &amp;PNG…</source>
        <translation>Als &amp;PNG …</translation>
    </message>
    <message>
        <source>Export a picture</source>
        <translation>Ein Bild exportieren</translation>
    </message>
    <message>
        <source>As P&amp;DF…</source>
        <translation>Als P&amp;DF …</translation>
    </message>
    <message>
        <source>Export a page</source>
        <translation>Eine Seite exportieren</translation>
    </message>
    <message>
        <source>As &amp;SVG…</source>
        <translation>Als &amp;SVG …</translation>
    </message>
    <message>
        <source>Export a copy of the drawing</source>
        <translation>Eine Kopie der Zeichnung exportieren</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken …</translation>
    </message>
    <message>
        <source>Print the drawing</source>
        <translation>Die Zeichnung drucken</translation>
    </message>
    <message>
        <source>Reopen &amp;Drawings at Start</source>
        <translation>Zeichnungen beim Start &amp;wieder öffnen</translation>
    </message>
    <message>
        <source>Open the drawings of the last time again, in windows as they were</source>
        <translation>Die Zeichnungen vom letzten Mal wieder öffnen, in Fenstern wie zuvor</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Close all drawings</source>
        <translation>Alle Zeichnungen schließen</translation>
    </message>
    <message>
        <source>No recent drawings</source>
        <translation>Keine Zeichnungen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>Die letzte Änderung zurücknehmen</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Redo what was undone</source>
        <translation>Zurückgenommenes wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete what is selected</source>
        <translation>Ausgewähltes löschen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Select every object</source>
        <translation>Jedes Objekt auswählen</translation>
    </message>
    <message>
        <source>&amp;Gradient Options…</source>
        <translation>Verlaufs&amp;optionen …</translation>
    </message>
    <message>
        <source>Edit the current gradient</source>
        <translation>Den aktuellen Verlauf bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100 %</translation>
    </message>
    <message>
        <source>One drawing unit per pixel</source>
        <translation>Eine Zeichnungseinheit je Bildpunkt</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>Ein&amp;passen</translation>
    </message>
    <message>
        <source>Show the whole drawing</source>
        <translation>Die ganze Zeichnung zeigen</translation>
    </message>
    <message>
        <source>Snap to &amp;Grid</source>
        <translation>Am &amp;Raster einrasten</translation>
    </message>
    <message>
        <source>Snap to the grid</source>
        <translation>Am Raster einrasten</translation>
    </message>
    <message>
        <source>Snap to &amp;Objects</source>
        <translation>An &amp;Objekten einrasten</translation>
    </message>
    <message>
        <source>Snap to corners and ends</source>
        <translation>An Ecken und Enden einrasten</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Erscheinungsbild</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Wie der &amp;Desktop</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>D&amp;unkel</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>What keys and mouse do</source>
        <translation>Was Tasten und Maus bewirken</translation>
    </message>
    <message>
        <source>&amp;About Easel</source>
        <translation>&amp;Über Easel</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Über dieses Programm</translation>
    </message>
    <message>
        <source>Main Tool Bar</source>
        <translation>Hauptwerkzeugleiste</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>%1 (%2); double-click for its options</source>
        <translation>%1 (%2); Doppelklick für die Optionen</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>High &amp;Contrast</source>
        <translation>Hoher &amp;Kontrast</translation>
    </message>
    <message>
        <source>The center is at %1 now</source>
        <translation>Der Mittelpunkt liegt jetzt bei %1</translation>
    </message>
    <message>
        <source>There is not enough memory to show “%1” as it is.</source>
        <translation>Der Speicher reicht nicht, um „%1“ so zu zeigen, wie sie ist.</translation>
    </message>
</context>
<context>
    <name>easel::window::NoticeBar</name>
    <message>
        <source>Put this notice away</source>
        <translation>Diesen Hinweis schließen</translation>
    </message>
    <message>
        <source>&amp;Got it</source>
        <translation>Vers&amp;tanden</translation>
    </message>
</context>
<context>
    <name>easel::window::RecoveryDialog</name>
    <message>
        <source>Unsaved Drawings</source>
        <translation>Nicht gespeicherte Zeichnungen</translation>
    </message>
    <message>
        <source>Easel ended before these drawings were saved. What is opened keeps the name of its file, which stays as it is until you save.</source>
        <translation>Easel endete, bevor diese Zeichnungen gespeichert waren. Was geöffnet wird, behält den Namen seiner Datei, und die bleibt bis zum Speichern, wie sie ist.</translation>
    </message>
    <message>
        <source>&amp;Throw Away</source>
        <translation>&amp;Wegwerfen</translation>
    </message>
    <message>
        <source>Move to the trash</source>
        <translation>In den Papierkorb legen</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>Ask again at the next start</source>
        <translation>Beim nächsten Start wieder fragen</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
</context>
<context>
    <name>easel::window::TemplateMenu</name>
    <message>
        <source>No templates</source>
        <translation>Keine Vorlagen</translation>
    </message>
</context>
<context>
    <name>easel::window::ToolChoice</name>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
</context>
<context>
    <name>system</name>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>keine Berechtigung</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>der Vorgang ist nicht erlaubt</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>auf dem Datenträger ist kein Platz mehr</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>das Dateisystem ist schreibgeschützt</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>der zugeteilte Platz ist aufgebraucht</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Ein-/Ausgabefehler</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>die Datei ist zu groß</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>kein Ordner</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>die Datei gibt es schon</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>der Dateiname ist zu lang</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>zu viele offene Dateien</translation>
    </message>
    <message>
        <source>Too many open files in system</source>
        <translation>zu viele offene Dateien im System</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>der Speicher reicht nicht</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>zu viele Verweise hintereinander</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>das Gerät oder die Datei ist belegt</translation>
    </message>
    <message>
        <source>Text file busy</source>
        <translation>das Programm in der Datei läuft gerade</translation>
    </message>
    <message>
        <source>No such device</source>
        <translation>das Gerät ist nicht da</translation>
    </message>
    <message>
        <source>No such device or address</source>
        <translation>das Gerät oder die Adresse ist nicht da</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <translation>die Datei ist auf dem Server nicht mehr da</translation>
    </message>
    <message>
        <source>Host is down</source>
        <translation>der Server ist nicht in Betrieb</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>der Server antwortet nicht</translation>
    </message>
    <message>
        <source>Transport endpoint is not connected</source>
        <translation>keine Verbindung zum Server</translation>
    </message>
    <message>
        <source>Invalid cross-device link</source>
        <translation>es liegt auf einem anderen Datenträger</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>das ist hier nicht möglich</translation>
    </message>
    <message>
        <source>Operation not supported</source>
        <translation>das wird hier nicht unterstützt</translation>
    </message>
    <message>
        <source>Directory not empty</source>
        <translation>der Ordner ist nicht leer</translation>
    </message>
</context>
</TS>
