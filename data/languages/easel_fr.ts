<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>QObject</name>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Direction in degrees, counter-clockwise; 0 is to the right:</source>
        <translation>Direction en degrés, dans le sens antihoraire&#xa0;; 0 est à droite&#xa0;:</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&amp;Share of the present opacity:</source>
        <translation>&amp;Part de l’opacité présente&#xa0;:</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> pixels</translation>
    </message>
    <message>
        <source> pixels per inch</source>
        <translation> pixels par pouce</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largeur&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Hauteur&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Résolution&#xa0;:</translation>
    </message>
    <message>
        <source>Picture Size</source>
        <translation>Taille de l’image</translation>
    </message>
    <message>
        <source>Easel</source>
        <translation>Easel</translation>
    </message>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>Enregistrer les modifications de «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Without saving, the changes since the last save are lost.</source>
        <translation>Sans enregistrement, les modifications faites depuis le dernier seront perdues.</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>SVG drawings (*.svg *.svgz);;All files (*)</source>
        <translation>Dessins SVG (*.svg *.svgz);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Kept %1</source>
        <translation>Conservé&#xa0;: %1</translation>
    </message>
    <message>
        <source> or </source>
        <translation> ou </translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Give a shape the current gradient</source>
        <translation>Donner à une forme le dégradé courant</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Cliquer</translation>
    </message>
    <message>
        <source>Turn a linear gradient</source>
        <translation>Tourner un dégradé linéaire</translation>
    </message>
    <message>
        <source>Drag (Shift: in steps of 15°)</source>
        <translation>Tirer (Maj&#xa0;: par pas de 15°)</translation>
    </message>
    <message>
        <source>Move the center of a radial gradient</source>
        <translation>Déplacer le centre d’un dégradé radial</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>Appuyer</translation>
    </message>
    <message>
        <source>Edit the gradient of a shape</source>
        <translation>Modifier le dégradé d’une forme</translation>
    </message>
    <message>
        <source>Alt-click or Ctrl-click</source>
        <translation>Alt-clic ou Ctrl-clic</translation>
    </message>
    <message>
        <source>Copy the gradient of a shape</source>
        <translation>Copier le dégradé d’une forme</translation>
    </message>
    <message>
        <source>Alt-Shift-click</source>
        <translation>Alt-Maj-clic</translation>
    </message>
    <message>
        <source>Edit the current gradient</source>
        <translation>Modifier le dégradé courant</translation>
    </message>
    <message>
        <source>Double-click the tool</source>
        <translation>Double-cliquer sur l’outil</translation>
    </message>
    <message>
        <source>Zoom about the pointer</source>
        <translation>Agrandir autour du pointeur</translation>
    </message>
    <message>
        <source>Ctrl and wheel</source>
        <translation>Ctrl et molette</translation>
    </message>
    <message>
        <source>Move the view</source>
        <translation>Déplacer la vue</translation>
    </message>
    <message>
        <source>Wheel, middle button, or Space and drag</source>
        <translation>Molette, bouton du milieu, ou Espace et tirer</translation>
    </message>
    <message>
        <source>Break off a drag</source>
        <translation>Interrompre un tracé</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>About Easel</source>
        <translation>À propos d’Easel</translation>
    </message>
    <message>
        <source>Easel %1</source>
        <translation>Easel %1</translation>
    </message>
    <message>
        <source>Draws with gradients on SVG files.

The gradient tool is a plug-in; Easel is the host that it runs in.</source>
        <translation>Dessine avec des dégradés dans des fichiers SVG.

L’outil de dégradé est un module&#xa0;; Easel est le programme qui l’accueille.</translation>
    </message>
    <message>
        <source>Opening %1 …</source>
        <translation>Ouverture de %1…</translation>
    </message>
    <message>
        <source>%1[*] — Easel</source>
        <translation>%1[*] — Easel</translation>
    </message>
    <message>
        <source>Opacity and ellipse stay as they are</source>
        <translation>L’opacité et l’ellipse restent telles quelles</translation>
    </message>
    <message>
        <source>Opacity stays as it is</source>
        <translation>L’opacité reste telle quelle</translation>
    </message>
    <message>
        <source>The ellipse stays as it is</source>
        <translation>L’ellipse reste telle quelle</translation>
    </message>
    <message>
        <source>The focus of this gradient was not inside its circle. With this change it has moved there, so that the gradient looks a little different.</source>
        <translation>Le foyer de ce dégradé n’était pas dans son cercle. Cette modification l’y a déplacé, si bien que le dégradé a un aspect un peu différent.</translation>
    </message>
    <message>
        <source>This gradient repeated more often than can be edited. With this change its colors run only once.</source>
        <translation>Ce dégradé se répétait plus souvent qu’on ne peut modifier. Après cette modification, ses couleurs ne défilent qu’une fois.</translation>
    </message>
    <message>
        <source>This gradient had no extent, so that only its last color showed. With this change that color is all that is left of it.</source>
        <translation>Ce dégradé n’avait aucune étendue, si bien que seule sa dernière couleur se voyait. Après cette modification, il n’en reste que cette couleur.</translation>
    </message>
    <message>
        <source>%1

Easel runs without this tool.</source>
        <translation>%1

Easel fonctionne sans cet outil.</translation>
    </message>
    <message>
        <source>Printing %1 …</source>
        <translation>Impression de %1…</translation>
    </message>
    <message>
        <source>The printer cannot be started.</source>
        <translation>L’imprimante ne peut pas être démarrée.</translation>
    </message>
    <message>
        <source>There is not enough memory to print this drawing.</source>
        <translation>La mémoire ne suffit pas pour imprimer ce dessin.</translation>
    </message>
    <message numerus="yes">
        <source>%n templates were added. The gradient editor lists them in its popup, and Edit &gt; Gradient &gt; Apply Template gives them to shapes.</source>
        <translation>
            <numerusform>%n modèle a été ajouté. L’éditeur de dégradé le présente dans son menu, et Édition &gt; Dégradé &gt; Appliquer un modèle le donne aux formes.</numerusform>
            <numerusform>%n modèles ont été ajoutés. L’éditeur de dégradé les présente dans son menu, et Édition &gt; Dégradé &gt; Appliquer un modèle les donne aux formes.</numerusform>
        </translation>
    </message>
    <message>
        <source>You have no gradient templates yet. Would you like a dozen to begin with, such as a sky, gold and wood?</source>
        <translation>Il n’y a pas encore de modèles de dégradé. En voulez-vous une douzaine pour commencer, tels que ciel, or et bois&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Add Starter Templates</source>
        <translation>&amp;Ajouter des modèles</translation>
    </message>
    <message>
        <source>No &amp;Thanks</source>
        <translation>&amp;Non merci</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>Two coordinates, and what stands between them where a comma is the decimal sign</extracomment>
        <translation>%1&#xa0;; %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>The field is empty.</source>
        <translation>Le champ est vide.</translation>
    </message>
    <message>
        <source>“%1” is empty.</source>
        <translation>«&#xa0;%1&#xa0;» est vide.</translation>
    </message>
    <message>
        <source>%1 Type something, or choose Cancel.</source>
        <translation>%1 Saisir quelque chose, ou choisir Annuler.</translation>
    </message>
    <message>
        <source>Gradient Tool</source>
        <translation>Outil de dégradé</translation>
    </message>
    <message>
        <source>Select Tool</source>
        <translation>Outil de sélection</translation>
    </message>
    <message>
        <source>Select a shape</source>
        <translation>Sélectionner une forme</translation>
    </message>
    <message>
        <source>Select one more, or one less</source>
        <translation>En sélectionner une de plus ou de moins</translation>
    </message>
    <message>
        <source>Shift-click</source>
        <translation>Maj-clic</translation>
    </message>
    <message>
        <source>Select several</source>
        <translation>En sélectionner plusieurs</translation>
    </message>
    <message>
        <source>Drag (Shift: in addition)</source>
        <translation>Tirer (Maj&#xa0;: en plus)</translation>
    </message>
    <message>
        <source>Any Tool</source>
        <translation>Tout outil</translation>
    </message>
    <message>
        <source>Open drawings</source>
        <translation>Ouvrir des dessins</translation>
    </message>
    <message>
        <source>Drop files on a window</source>
        <translation>Déposer des fichiers sur une fenêtre</translation>
    </message>
    <message>
        <source>Gradient Editor</source>
        <translation>Éditeur de dégradé</translation>
    </message>
    <message>
        <source>Choose a color stop</source>
        <translation>Choisir un point de couleur</translation>
    </message>
    <message>
        <source>Click its marker</source>
        <translation>Cliquer sur sa marque</translation>
    </message>
    <message>
        <source>Add a color stop</source>
        <translation>Ajouter un point de couleur</translation>
    </message>
    <message>
        <source>Click the ramp elsewhere</source>
        <translation>Cliquer ailleurs sur la bande</translation>
    </message>
    <message>
        <source>Move a color stop</source>
        <translation>Déplacer un point de couleur</translation>
    </message>
    <message>
        <source>Drag its marker, or type its position</source>
        <translation>Tirer sa marque, ou saisir sa position</translation>
    </message>
    <message>
        <source>Remove a color stop</source>
        <translation>Enlever un point de couleur</translation>
    </message>
    <message>
        <source>Pull its marker down, or clear its position</source>
        <translation>Tirer sa marque vers le bas, ou vider sa position</translation>
    </message>
    <message>
        <source>Change the color of a stop</source>
        <translation>Changer la couleur d’un point</translation>
    </message>
    <message>
        <source>Click the color below the ramp</source>
        <translation>Cliquer sur la couleur sous la bande</translation>
    </message>
    <message>
        <source>Set the direction</source>
        <translation>Donner la direction</translation>
    </message>
    <message>
        <source>Drag in the preview (Shift: in steps of 15°)</source>
        <translation>Tirer dans l’aperçu (Maj&#xa0;: par pas de 15°)</translation>
    </message>
    <message>
        <source>Set the center</source>
        <translation>Placer le centre</translation>
    </message>
    <message>
        <source>Press in the preview</source>
        <translation>Appuyer dans l’aperçu</translation>
    </message>
    <message>
        <source>Find a template</source>
        <translation>Trouver un modèle</translation>
    </message>
    <message>
        <source>Open the popup and type its name</source>
        <translation>Ouvrir le menu et taper son nom</translation>
    </message>
    <message>
        <source>Take back what is being dragged</source>
        <translation>Reprendre ce que l’on est en train de tirer</translation>
    </message>
    <message>
        <source>Accept, or leave all as it was</source>
        <translation>Accepter, ou tout laisser comme avant</translation>
    </message>
    <message>
        <source>Return, Escape</source>
        <translation>Entrée, Échap</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygone</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Tracé</translation>
    </message>
    <message>
        <source>Open path</source>
        <translation>Tracé ouvert</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>%1 stops</source>
        <translation>%1 points de couleur</translation>
    </message>
    <message>
        <source>linear gradient, %1, %2°</source>
        <translation>dégradé linéaire, %1, %2°</translation>
    </message>
    <message>
        <source>radial gradient, %1</source>
        <translation>dégradé radial, %1</translation>
    </message>
    <message>
        <source>%1 “%2”</source>
        <translation>%1 « %2 »</translation>
    </message>
    <message>
        <source>no fill</source>
        <translation>aucun remplissage</translation>
    </message>
    <message>
        <source>another fill</source>
        <translation>autre remplissage</translation>
    </message>
    <message>
        <source>Selected shape: give it the current gradient, if it has none</source>
        <translation>Forme sélectionnée : lui donner le dégradé actuel si elle n’en a pas</translation>
    </message>
    <message>
        <source>Selected shape: edit its gradient</source>
        <translation>Forme sélectionnée : modifier son dégradé</translation>
    </message>
    <message>
        <source>Selected shape: turn a linear gradient by 1°, move the center of a radial one by a pixel (Shift: to multiples of 15°, by ten)</source>
        <translation>Forme sélectionnée : tourner un dégradé linéaire de 1°, déplacer le centre d’un dégradé radial d’un pixel (Maj : aux multiples de 15°, de dix)</translation>
    </message>
    <message>
        <source>Direction %1°</source>
        <translation>Direction %1°</translation>
    </message>
    <message>
        <source>Center at %1 % from the left and %2 % from the top</source>
        <translation>Centre à %1 % de la gauche et %2 % du haut</translation>
    </message>
    <message>
        <source>Add a stop</source>
        <translation>Ajouter un point de couleur</translation>
    </message>
    <message>
        <source>Ramp: the stop before or after becomes active</source>
        <translation>Bande : choisir le point précédent ou suivant</translation>
    </message>
    <message>
        <source>Ramp: move the stop by a pixel (Shift: by ten)</source>
        <translation>Bande : déplacer le point d’un pixel (Maj : de dix)</translation>
    </message>
    <message>
        <source>Ramp: move the stop by ten pixels</source>
        <translation>Bande : déplacer le point de dix pixels</translation>
    </message>
    <message>
        <source>Ramp: move the stop to an end</source>
        <translation>Bande : déplacer le point à une extrémité</translation>
    </message>
    <message>
        <source>Ramp: add a stop after the active one</source>
        <translation>Bande : ajouter un point après celui qui est choisi</translation>
    </message>
    <message>
        <source>Ramp: remove the stop</source>
        <translation>Bande : enlever le point</translation>
    </message>
    <message>
        <source>Ramp: choose the stop&apos;s color</source>
        <translation>Bande : choisir la couleur du point</translation>
    </message>
    <message>
        <source>Preview: turn a linear gradient by 1°, move the center of a radial one by a pixel (Shift: to multiples of 15°, by ten)</source>
        <translation>Aperçu : tourner un dégradé linéaire de 1°, déplacer le centre d’un dégradé radial d’un pixel (Maj : aux multiples de 15°, de dix)</translation>
    </message>
    <message>
        <source>Preview: direction to the right, center in the middle</source>
        <translation>Aperçu : direction vers la droite, centre au milieu</translation>
    </message>
    <message>
        <source>Swatch: choose the stop&apos;s color</source>
        <translation>Couleur : choisir la couleur du point</translation>
    </message>
    <message>
        <source>Stop %1 of %2</source>
        <translation>Point %1 sur %2</translation>
    </message>
    <message>
        <source>Choose the color</source>
        <translation>Choisir la couleur</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Enlever</translation>
    </message>
    <message>
        <source>Keys in the Drawing</source>
        <translation>Touches dans le dessin</translation>
    </message>
    <message>
        <source>Select the next shape, or the one before</source>
        <translation>Sélectionner la forme suivante ou la précédente</translation>
    </message>
    <message>
        <source>Keys in the Gradient Editor</source>
        <translation>Touches dans l’éditeur de dégradés</translation>
    </message>
    <message>
        <source>%1: there is not enough memory for that, and it was not done. The drawing is as it was before.</source>
        <translation>%1&#xa0;: la mémoire n’y suffit pas, et rien n’a été fait. Le dessin est tel qu’avant.</translation>
    </message>
</context>
<context>
    <name>core</name>
    <message>
        <source>Some of the text is kept in the file but not shown.</source>
        <translation>Une partie du texte est gardée dans le fichier mais pas montrée.</translation>
    </message>
    <message>
        <source>Videos and canvases are kept in the file but not shown.</source>
        <translation>Les vidéos et les canevas sont gardés dans le fichier mais pas montrés.</translation>
    </message>
    <message>
        <source>Pictures that are neither PNG, JPEG, GIF, WebP nor SVG are kept in the file but not shown.</source>
        <translation>Les images qui ne sont ni PNG, ni JPEG, ni GIF, ni WebP, ni SVG sont gardées dans le fichier mais pas montrées.</translation>
    </message>
    <message>
        <source>Pictures that are damaged are kept in the file but not shown.</source>
        <translation>Les images endommagées sont gardées dans le fichier mais pas montrées.</translation>
    </message>
    <message>
        <source>Pictures of more than 25 million pixels are kept in the file but not shown.</source>
        <translation>Les images de plus de 25 millions de pixels sont gardées dans le fichier mais pas montrées.</translation>
    </message>
    <message>
        <source>Pictures are read from the folder of the drawing and those below it, and from nowhere else.</source>
        <translation>Les images sont lues dans le dossier du dessin et ceux qu’il contient, et nulle part ailleurs.</translation>
    </message>
    <message>
        <source>Pictures in files that cannot be read are not shown.</source>
        <translation>Les images dans des fichiers illisibles ne sont pas montrées.</translation>
    </message>
    <message>
        <source>Content in other languages than SVG is kept in the file but not shown.</source>
        <translation>Le contenu dans d’autres langages que SVG est gardé dans le fichier mais pas montré.</translation>
    </message>
    <message>
        <source>Scripts are kept in the file but not run.</source>
        <translation>Les scripts sont gardés dans le fichier mais pas exécutés.</translation>
    </message>
    <message>
        <source>Animations are kept in the file but not played.</source>
        <translation>Les animations sont gardées dans le fichier mais pas jouées.</translation>
    </message>
    <message>
        <source>Filters of other kinds than those of SVG and CSS are kept in the file but not applied.</source>
        <translation>Les filtres d’autres sortes que ceux de SVG et CSS sont gardés dans le fichier mais pas appliqués.</translation>
    </message>
    <message>
        <source>Masks other than mask elements are kept in the file but not applied.</source>
        <translation>Les masques autres que les éléments de masque sont gardés dans le fichier mais pas appliqués.</translation>
    </message>
    <message>
        <source>Vector effects other than strokes of fixed width are kept in the file but not applied.</source>
        <translation>Les effets vectoriels autres que les contours de largeur fixe sont gardés dans le fichier mais pas appliqués.</translation>
    </message>
    <message>
        <source>Clip paths other than outlines are kept in the file but not applied.</source>
        <translation>Les découpes autres que des tracés sont gardées dans le fichier mais pas appliquées.</translation>
    </message>
    <message>
        <source>Style sheets outside the file are not read.</source>
        <translation>Les feuilles de style hors du fichier ne sont pas lues.</translation>
    </message>
    <message>
        <source>Content outside the file is not read.</source>
        <translation>Le contenu hors du fichier n’est pas lu.</translation>
    </message>
    <message>
        <source>References that lead back to themselves are kept in the file but not followed.</source>
        <translation>Les références qui ramènent à elles-mêmes sont gardées dans le fichier mais pas suivies.</translation>
    </message>
    <message>
        <source>Shapes with numbers out of range are kept in the file but not shown.</source>
        <translation>Les formes aux nombres hors limites sont gardées dans le fichier mais pas montrées.</translation>
    </message>
    <message>
        <source>Groups and use elements nested very deep are kept in the file but not shown as such.</source>
        <translation>Les groupes et les répétitions imbriqués très profondément sont gardés dans le fichier mais pas montrés comme tels.</translation>
    </message>
    <message>
        <source>Gradients between colors in linear light are drawn between those of sRGB.</source>
        <translation>Les dégradés entre couleurs en lumière linéaire sont dessinés entre celles de sRGB.</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>le fichier est trop grand</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>the file is larger than memory</source>
        <translation>le fichier est plus grand que la mémoire</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>the file is too large when it is unpacked</source>
        <translation>le fichier est trop grand une fois décompressé</translation>
    </message>
    <message>
        <source>it is compressed, and what it holds is damaged or cut off</source>
        <translation>il est compressé, et son contenu est endommagé ou coupé</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>la mémoire n’y suffit pas</translation>
    </message>
    <message>
        <source>there is not enough memory to write it</source>
        <translation>la mémoire ne suffit pas pour l’écrire</translation>
    </message>
    <message>
        <source>there is not enough memory for the picture</source>
        <translation>la mémoire ne suffit pas pour l’image</translation>
    </message>
    <message>
        <source>it is not XML: it has no element</source>
        <translation>ce n’est pas du XML&#xa0;: il n’a aucun élément</translation>
    </message>
    <message>
        <source>it is not complete: it ends inside an element</source>
        <translation>il n’est pas complet&#xa0;: il finit au milieu d’un élément</translation>
    </message>
    <message>
        <source>it is not XML: it holds characters that no text has</source>
        <translation>ce n’est pas du XML&#xa0;: il contient des caractères qu’aucun texte n’a</translation>
    </message>
    <message>
        <source>it is XML, but not an SVG drawing</source>
        <translation>c’est du XML, mais pas un dessin SVG</translation>
    </message>
    <message>
        <source>it is not XML: an entity is defined by way of itself</source>
        <translation>ce n’est pas du XML&#xa0;: une entité est définie par elle-même</translation>
    </message>
    <message>
        <source>its entities expand without measure</source>
        <translation>ses entités s’étendent sans mesure</translation>
    </message>
    <message>
        <source>it repeats its shapes so often that they do not fit into memory</source>
        <translation>il répète ses formes si souvent que la mémoire n’y suffit pas</translation>
    </message>
    <message>
        <source>it states more custom properties than fit into memory</source>
        <translation>il énonce plus de propriétés personnalisées que la mémoire n’en contient</translation>
    </message>
    <message>
        <source>the name of a picture must end in .png, .pdf or .svg</source>
        <translation>le nom d’une image doit finir par .png, .pdf ou .svg</translation>
    </message>
    <message>
        <source>no name for a temporary file could be found</source>
        <translation>aucun nom n’a été trouvé pour un fichier temporaire</translation>
    </message>
    <message>
        <source>the trash holds too many files of that name</source>
        <translation>la corbeille contient trop de fichiers de ce nom</translation>
    </message>
    <message>
        <source>not a plug-in: it has no MainEntry</source>
        <translation>ce n’est pas un module&#xa0;: il n’a pas de MainEntry</translation>
    </message>
    <message>
        <source>it has no &lt;resources&gt;</source>
        <translation>il n’a pas de &lt;resources&gt;</translation>
    </message>
    <message>
        <source>the name of a file cannot hold &apos;:&apos;</source>
        <translation>le nom d’un fichier ne peut pas contenir «&#xa0;:&#xa0;»</translation>
    </message>
    <message>
        <source>the name of a file cannot begin with &apos;._&apos;</source>
        <translation>le nom d’un fichier ne peut pas commencer par «&#xa0;._&#xa0;»</translation>
    </message>
    <message>
        <source>it cannot be the name of a file</source>
        <translation>aucun fichier ne peut porter ce nom</translation>
    </message>
    <message>
        <source>its folder is not there</source>
        <translation>son dossier n’existe pas</translation>
    </message>
    <message>
        <source>not a name for a folder</source>
        <translation>aucun dossier ne peut porter ce nom</translation>
    </message>
    <message>
        <source>it has no name for the template folder</source>
        <translation>le nom du dossier des modèles y manque</translation>
    </message>
    <message>
        <source>its resources are damaged</source>
        <translation>ses ressources sont endommagées</translation>
    </message>
    <message>
        <source>its resources are larger than a resource file can be</source>
        <translation>ses ressources dépassent ce que contient un fichier de ressources</translation>
    </message>
    <message>
        <source>the defaults are larger than a resource file can be</source>
        <translation>les réglages par défaut dépassent ce que contient un fichier de ressources</translation>
    </message>
    <message>
        <source>the header file is cut short</source>
        <translation>le fichier d’en-tête est tronqué</translation>
    </message>
    <message>
        <source>it is no AppleDouble header file</source>
        <translation>ce n’est pas un fichier d’en-tête AppleDouble</translation>
    </message>
    <message>
        <source>it has an AppleDouble version other than 1 and 2</source>
        <translation>sa version d’AppleDouble n’est ni 1 ni 2</translation>
    </message>
    <message>
        <source>an entry of the header file does not lie within it</source>
        <translation>une entrée du fichier d’en-tête se trouve hors de lui</translation>
    </message>
    <message>
        <source>entries of the header file overlap</source>
        <translation>des entrées du fichier d’en-tête se chevauchent</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>le nom est déjà pris</translation>
    </message>
    <message>
        <source>the compressor&apos;s output is not a deflate stream</source>
        <translation>la compression n’a pas produit de flux deflate</translation>
    </message>
    <message>
        <source>unknown error of the dynamic linker</source>
        <translation>erreur inconnue de l’éditeur de liens dynamique</translation>
    </message>
    <message>
        <source>It could not be read.</source>
        <translation>La lecture a échoué.</translation>
    </message>
    <message>
        <source>The change was not kept.</source>
        <translation>La modification n’a pas été conservée.</translation>
    </message>
    <message>
        <source>The current gradient and templates will not be kept.</source>
        <translation>Le dégradé actuel et les modèles ne seront pas conservés.</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>Rien n’a été enregistré.</translation>
    </message>
    <message>
        <source>it is no well-formed XML: %1</source>
        <translation>ce n’est pas du XML bien formé&#xa0;: %1</translation>
    </message>
    <message>
        <source>it is not well-formed XML (line %1)</source>
        <translation>ce n’est pas du XML bien formé (ligne %1)</translation>
    </message>
    <message>
        <source>cannot be loaded: %1</source>
        <translation>impossible à charger&#xa0;: %1</translation>
    </message>
    <message>
        <source>the picture would have %1 by %2 pixels; no side can be longer than %3</source>
        <translation>l’image aurait %1 sur %2 pixels&#xa0;; aucun côté ne peut dépasser %3</translation>
    </message>
    <message>
        <source>a picture of %1 by %2 pixels needs %3 MB of memory, and %4 MB are free</source>
        <translation>une image de %1 sur %2 pixels demande %3 Mo de mémoire, et %4 Mo sont libres</translation>
    </message>
    <message>
        <source>%1; nothing was saved</source>
        <translation>%1&#xa0;; rien n’a été enregistré</translation>
    </message>
    <message>
        <source>it could not be opened again: %1</source>
        <translation>il ne pourrait pas être rouvert&#xa0;: %1</translation>
    </message>
    <message>
        <source>it would hold %1 objects instead of %2</source>
        <translation>il contiendrait %1 objets au lieu de %2</translation>
    </message>
    <message>
        <source>the fill of %1 would not be read back as it is now</source>
        <translation>à la relecture, le fond ne serait plus celui d’à présent&#xa0;: %1</translation>
    </message>
    <message>
        <source>the stroke of %1 would not be read back as it is now</source>
        <translation>à la relecture, le contour ne serait plus celui d’à présent&#xa0;: %1</translation>
    </message>
    <message>
        <source>object %1</source>
        <translation>objet %1</translation>
    </message>
    <message>
        <source>the object &quot;%1&quot;</source>
        <translation>objet «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Fonts are read from the folder of the drawing and those below it, and from nowhere else.</source>
        <translation>Les polices sont lues dans le dossier du dessin et ceux qu’il contient, et nulle part ailleurs.</translation>
    </message>
    <message>
        <source>Fonts that are damaged or of unknown kinds are replaced by others.</source>
        <translation>Les polices endommagées ou de type inconnu sont remplacées par d’autres.</translation>
    </message>
</context>
<context>
    <name>easel::window::Canvas</name>
    <message>
        <source>Drawing</source>
        <translation>Dessin</translation>
    </message>
</context>
<context>
    <name>easel::window::ColorPicker</name>
    <message>
        <source>Exact values:</source>
        <translation>Valeurs exactes&#xa0;:</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>%1, 16 bits</source>
        <translation>%1, 16 bits</translation>
    </message>
    <message>
        <source>%1 from 0 to 65535</source>
        <translation>%1 de 0 à 65535</translation>
    </message>
</context>
<context>
    <name>easel::window::DeletionWindow</name>
    <message>
        <source>Choose several with Shift or Ctrl. What is deleted goes to the trash.</source>
        <translation>Maj ou Ctrl permet d’en choisir plusieurs. Ce qui est supprimé va à la corbeille.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>easel::window::EditItem</name>
    <message>
        <source>“%1” cannot be used here: names are kept in the Mac Roman alphabet.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas possible ici&#xa0;: les noms sont conservés dans l’alphabet Mac Roman.</translation>
    </message>
</context>
<context>
    <name>easel::window::GradientMenu</name>
    <message>
        <source>Gradien&amp;t</source>
        <translation>&amp;Dégradé</translation>
    </message>
    <message>
        <source>&amp;Copy Gradient</source>
        <translation>&amp;Copier le dégradé</translation>
    </message>
    <message>
        <source>&amp;Paste Gradient</source>
        <translation>C&amp;oller le dégradé</translation>
    </message>
    <message>
        <source>Pick &amp;Up Gradient</source>
        <translation>&amp;Prélever un dégradé</translation>
    </message>
    <message>
        <source>&amp;Reverse</source>
        <translation>&amp;Inverser</translation>
    </message>
    <message>
        <source>Rotate by &amp;90°</source>
        <translation>Tourner de &amp;90°</translation>
    </message>
    <message>
        <source>&amp;Angle…</source>
        <translation>&amp;Angle…</translation>
    </message>
    <message>
        <source>Space Stops &amp;Evenly</source>
        <translation>&amp;Répartir les points de couleur</translation>
    </message>
    <message>
        <source>&amp;Opacity…</source>
        <translation>Op&amp;acité…</translation>
    </message>
    <message>
        <source>Ma&amp;ke Opaque</source>
        <translation>Rendre opa&amp;que</translation>
    </message>
    <message>
        <source>&amp;Make Circular</source>
        <translation>&amp;Rendre circulaire</translation>
    </message>
    <message>
        <source>Apply Current &amp;Gradient</source>
        <translation>Appliquer le dégradé coura&amp;nt</translation>
    </message>
    <message>
        <source>Re&amp;move Gradient</source>
        <translation>S&amp;upprimer le dégradé</translation>
    </message>
    <message>
        <source>P&amp;lain Color…</source>
        <translation>Couleur &amp;unie…</translation>
    </message>
    <message>
        <source>Apply &amp;Template</source>
        <translation>Appliquer un &amp;modèle</translation>
    </message>
    <message>
        <source>&amp;Stroke Instead of Fill</source>
        <translation>Contour au lieu du &amp;fond</translation>
    </message>
    <message>
        <source>Plain color</source>
        <translation>Couleur unie</translation>
    </message>
</context>
<context>
    <name>easel::window::MainWindow</name>
    <message>
        <source>Until you save, changes are not safe from a crash: %1</source>
        <translation>Jusqu’à l’enregistrement, les modifications ne sont pas à l’abri d’un plantage&#xa0;: %1</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Pointer, from the drawing&apos;s top-left corner</source>
        <translation>Pointeur, depuis le coin supérieur gauche du dessin</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Click or drag on a shape; hold Alt or Ctrl and click to edit its colors</source>
        <translation>Cliquer ou tirer sur une forme&#xa0;; avec Alt ou Ctrl, cliquer pour modifier ses couleurs</translation>
    </message>
    <message>
        <source>Click to select, Shift-click to add, drag to select several</source>
        <translation>Cliquer pour sélectionner, avec Maj pour ajouter, tirer pour en sélectionner plusieurs</translation>
    </message>
    <message>
        <source>There is no shape here that can carry a gradient</source>
        <translation>Il n’y a ici aucune forme qui puisse porter un dégradé</translation>
    </message>
    <message>
        <source>Current %1</source>
        <translation>%1 courant</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recharger</translation>
    </message>
    <message>
        <source>Keep Mine</source>
        <translation>Garder la mienne</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>“%1” was changed by another program.</source>
        <translation>«&#xa0;%1&#xa0;» a été modifié par un autre programme.</translation>
    </message>
    <message>
        <source>“%1” was deleted or renamed by another program.</source>
        <translation>«&#xa0;%1&#xa0;» a été supprimé ou renommé par un autre programme.</translation>
    </message>
    <message>
        <source>“%1” is write-protected.</source>
        <translation>«&#xa0;%1&#xa0;» est protégé en écriture.</translation>
    </message>
    <message>
        <source>“%1” is open in another window of Easel, too. What is saved there is not seen here before the file is read again.</source>
        <translation>«&#xa0;%1&#xa0;» est ouvert aussi dans une autre fenêtre d’Easel. Ce qui y est enregistré ne se voit ici qu’après une nouvelle lecture du fichier.</translation>
    </message>
    <message>
        <source>Read “%1” again?</source>
        <translation>Relire «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>The changes that are not saved are lost.</source>
        <translation>Les modifications non enregistrées seront perdues.</translation>
    </message>
    <message>
        <source>Go back to “%1” as it was opened?</source>
        <translation>Revenir à «&#xa0;%1&#xa0;» tel qu’il a été ouvert&#xa0;?</translation>
    </message>
    <message>
        <source>All changes since then are lost, and cannot be undone. The file stays as it is until you save.</source>
        <translation>Toutes les modifications faites depuis seront perdues, sans retour possible. Le fichier reste tel quel jusqu’à l’enregistrement.</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Revenir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>If it is saved now, what the other program wrote is lost.</source>
        <translation>Enregistrer maintenant fait perdre ce que l’autre programme a écrit.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>É&amp;craser</translation>
    </message>
    <message>
        <source>It can still be replaced by a new file of the same name.</source>
        <translation>Il peut quand même être remplacé par un nouveau fichier du même nom.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>“%1” could not be saved: %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être enregistré&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The drawing stays as it is, with its changes unsaved.</source>
        <translation>Le dessin reste tel quel, ses modifications ne sont pas enregistrées.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source> exported</source>
        <translation> exporté</translation>
    </message>
    <message>
        <source>Export as %1</source>
        <translation>Exporter en %1</translation>
    </message>
    <message>
        <source>%1 files (*.%2)</source>
        <translation>Fichiers %1 (*.%2)</translation>
    </message>
    <message>
        <source>%1: this is the drawing itself. Export it under another name, or save it.</source>
        <translation>%1&#xa0;: c’est le dessin lui-même. L’exporter sous un autre nom, ou l’enregistrer.</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 existe déjà. Le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Exporting %1 …</source>
        <translation>Exportation de %1…</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>%1 exporté</translation>
    </message>
    <message>
        <source>Printed %1</source>
        <translation>%1 imprimé</translation>
    </message>
    <message>
        <source>Click on a shape to copy its gradient; Escape lets it be</source>
        <translation>Cliquer sur une forme pour copier son dégradé&#xa0;; Échap y renonce</translation>
    </message>
    <message>
        <source>The gradient commands work on strokes</source>
        <translation>Les commandes de dégradé portent sur les contours</translation>
    </message>
    <message>
        <source>The gradient commands work on fills</source>
        <translation>Les commandes de dégradé portent sur les fonds</translation>
    </message>
    <message>
        <source>%1 of the Shape</source>
        <translation>%1 de la forme</translation>
    </message>
    <message>
        <source>%1 of “%2”</source>
        <translation>%1 de «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>The gradient is copied</source>
        <translation>Le dégradé est copié</translation>
    </message>
    <message>
        <source>There is no gradient here to copy</source>
        <translation>Il n’y a ici aucun dégradé à copier</translation>
    </message>
    <message>
        <source>A template has opaque colors and circles: the opacity and the ellipse of this gradient stay behind, with the shape.</source>
        <translation>Un modèle a des couleurs opaques et des cercles&#xa0;: l’opacité et l’ellipse de ce dégradé restent avec la forme.</translation>
    </message>
    <message>
        <source>A template has opaque colors: the opacity of this gradient stays behind, with the shape.</source>
        <translation>Un modèle a des couleurs opaques&#xa0;: l’opacité de ce dégradé reste avec la forme.</translation>
    </message>
    <message>
        <source>A template has circles: the ellipse of this gradient stays behind, with the shape.</source>
        <translation>Un modèle a des cercles&#xa0;: l’ellipse de ce dégradé reste avec la forme.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>New drawing</source>
        <translation>Nouveau dessin</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Open a drawing</source>
        <translation>Ouvrir un dessin</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save the drawing</source>
        <translation>Enregistrer le dessin</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvrir un ré&amp;cent</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>Save the drawing under another name</source>
        <translation>Enregistrer le dessin sous un autre nom</translation>
    </message>
    <message>
        <source>Re&amp;vert to Opened…</source>
        <translation>Re&amp;venir à l’ouverture…</translation>
    </message>
    <message>
        <source>Go back to the drawing as it was opened</source>
        <translation>Revenir au dessin tel qu’il a été ouvert</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>E&amp;xporter</translation>
    </message>
    <message>
        <source>As &amp;PNG…</source>
        <translation>En &amp;PNG…</translation>
    </message>
    <message>
        <source>Export a picture</source>
        <translation>Exporter une image</translation>
    </message>
    <message>
        <source>As P&amp;DF…</source>
        <translation>En P&amp;DF…</translation>
    </message>
    <message>
        <source>Export a page</source>
        <translation>Exporter une page</translation>
    </message>
    <message>
        <source>As &amp;SVG…</source>
        <translation>En &amp;SVG…</translation>
    </message>
    <message>
        <source>Export a copy of the drawing</source>
        <translation>Exporter une copie du dessin</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimer…</translation>
    </message>
    <message>
        <source>Print the drawing</source>
        <translation>Imprimer le dessin</translation>
    </message>
    <message>
        <source>Reopen &amp;Drawings at Start</source>
        <translation>&amp;Rouvrir les dessins au démarrage</translation>
    </message>
    <message>
        <source>Open the drawings of the last time again, in windows as they were</source>
        <translation>Rouvrir les dessins de la dernière fois, dans des fenêtres comme avant</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Fer&amp;mer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Close all drawings</source>
        <translation>Fermer tous les dessins</translation>
    </message>
    <message>
        <source>No recent drawings</source>
        <translation>Aucun dessin récent</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer la liste</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>Annuler la dernière modification</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Redo what was undone</source>
        <translation>Rétablir ce qui a été annulé</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Delete what is selected</source>
        <translation>Supprimer la sélection</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Select every object</source>
        <translation>Sélectionner tous les objets</translation>
    </message>
    <message>
        <source>&amp;Gradient Options…</source>
        <translation>&amp;Options du dégradé…</translation>
    </message>
    <message>
        <source>Edit the current gradient</source>
        <translation>Modifier le dégradé courant</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Agrandir</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Réduire</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100 %</translation>
    </message>
    <message>
        <source>One drawing unit per pixel</source>
        <translation>Une unité du dessin par pixel</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>A&amp;juster</translation>
    </message>
    <message>
        <source>Show the whole drawing</source>
        <translation>Montrer tout le dessin</translation>
    </message>
    <message>
        <source>Snap to &amp;Grid</source>
        <translation>Aligner sur la &amp;grille</translation>
    </message>
    <message>
        <source>Snap to the grid</source>
        <translation>Aligner sur la grille</translation>
    </message>
    <message>
        <source>Snap to &amp;Objects</source>
        <translation>Aligner sur les &amp;objets</translation>
    </message>
    <message>
        <source>Snap to corners and ends</source>
        <translation>Aligner sur les coins et les extrémités</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>Ap&amp;parence</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Comme le &amp;bureau</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Sombre</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Shortcuts</source>
        <translation>&amp;Raccourcis</translation>
    </message>
    <message>
        <source>What keys and mouse do</source>
        <translation>Ce que font les touches et la souris</translation>
    </message>
    <message>
        <source>&amp;About Easel</source>
        <translation>À &amp;propos d’Easel</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>À propos de ce programme</translation>
    </message>
    <message>
        <source>Main Tool Bar</source>
        <translation>Barre d’outils principale</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>%1 (%2); double-click for its options</source>
        <translation>%1 (%2)&#xa0;; double-cliquer pour ses options</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>High &amp;Contrast</source>
        <translation>Contraste &amp;élevé</translation>
    </message>
    <message>
        <source>The center is at %1 now</source>
        <translation>Le centre est maintenant à %1</translation>
    </message>
    <message>
        <source>There is not enough memory to show “%1” as it is.</source>
        <translation>La mémoire ne suffit pas pour montrer «&#xa0;%1&#xa0;» tel qu’il est.</translation>
    </message>
</context>
<context>
    <name>easel::window::NoticeBar</name>
    <message>
        <source>Put this notice away</source>
        <translation>Fermer cet avis</translation>
    </message>
    <message>
        <source>&amp;Got it</source>
        <translation>&amp;Compris</translation>
    </message>
</context>
<context>
    <name>easel::window::RecoveryDialog</name>
    <message>
        <source>Unsaved Drawings</source>
        <translation>Dessins non enregistrés</translation>
    </message>
    <message>
        <source>Easel ended before these drawings were saved. What is opened keeps the name of its file, which stays as it is until you save.</source>
        <translation>Easel s’est arrêté avant que ces dessins soient enregistrés. Ce qui est ouvert garde le nom de son fichier, qui reste tel quel jusqu’à l’enregistrement.</translation>
    </message>
    <message>
        <source>&amp;Throw Away</source>
        <translation>&amp;Jeter</translation>
    </message>
    <message>
        <source>Move to the trash</source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>Plus &amp;tard</translation>
    </message>
    <message>
        <source>Ask again at the next start</source>
        <translation>Redemander au prochain démarrage</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
</context>
<context>
    <name>easel::window::TemplateMenu</name>
    <message>
        <source>No templates</source>
        <translation>Aucun modèle</translation>
    </message>
</context>
<context>
    <name>easel::window::ToolChoice</name>
    <message>
        <source>Select</source>
        <translation>Sélection</translation>
    </message>
</context>
<context>
    <name>system</name>
    <message>
        <source>No such file or directory</source>
        <translation>fichier ou dossier introuvable</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>permission refusée</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>l’opération n’est pas permise</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>il n’y a plus de place sur le disque</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>le système de fichiers est en lecture seule</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>le quota de disque est dépassé</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>erreur d’entrée/sortie</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>le fichier est trop grand</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>ce n’est pas un dossier</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>le fichier existe déjà</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>le nom du fichier est trop long</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>trop de fichiers ouverts</translation>
    </message>
    <message>
        <source>Too many open files in system</source>
        <translation>trop de fichiers ouverts dans le système</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>la mémoire ne suffit pas</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>trop de liens symboliques à la suite</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>le périphérique ou la ressource est occupé</translation>
    </message>
    <message>
        <source>Text file busy</source>
        <translation>le programme du fichier est en cours d’exécution</translation>
    </message>
    <message>
        <source>No such device</source>
        <translation>le périphérique est absent</translation>
    </message>
    <message>
        <source>No such device or address</source>
        <translation>le périphérique ou l’adresse est absent</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <translation>le fichier n’est plus sur le serveur</translation>
    </message>
    <message>
        <source>Host is down</source>
        <translation>le serveur est arrêté</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>le serveur ne répond pas</translation>
    </message>
    <message>
        <source>Transport endpoint is not connected</source>
        <translation>aucune connexion au serveur</translation>
    </message>
    <message>
        <source>Invalid cross-device link</source>
        <translation>il se trouve sur un autre disque</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>ce n’est pas possible ici</translation>
    </message>
    <message>
        <source>Operation not supported</source>
        <translation>l’opération n’est pas prise en charge ici</translation>
    </message>
    <message>
        <source>Directory not empty</source>
        <translation>le dossier n’est pas vide</translation>
    </message>
</context>
</TS>
