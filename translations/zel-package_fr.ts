<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Il manque une valeur après &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Valeur inattendue après &apos;%1&apos;.</translation>
    </message>
</context>
<context>
    <name>Tano</name>
    <message>
        <source>There is not enough memory for the manifest.</source>
        <translation>La mémoire ne suffit pas pour le manifeste.</translation>
    </message>
    <message>
        <source>The text is UTF-16; a manifest is UTF-8.</source>
        <translation>Le texte est en UTF-16 ; un manifeste est en UTF-8.</translation>
    </message>
    <message>
        <source>XML version &quot;%1&quot; is not supported; a manifest is XML 1.0.</source>
        <translation>La version «&#xa0;%1&#xa0;» de XML n&apos;est pas prise en charge ; un manifeste est en XML 1.0.</translation>
    </message>
    <message>
        <source>The encoding &quot;%1&quot; is not supported; a manifest is UTF-8.</source>
        <translation>L&apos;encodage «&#xa0;%1&#xa0;» n&apos;est pas pris en charge ; un manifeste est en UTF-8.</translation>
    </message>
    <message>
        <source>A document type declaration is not allowed.</source>
        <translation>Une déclaration de type de document n&apos;est pas permise.</translation>
    </message>
    <message>
        <source>An &quot;&amp;&quot; starts a reference here; write &amp;amp; for the character itself.</source>
        <translation>Un «&#xa0;&amp;&#xa0;» commence ici une référence ; le caractère lui-même s&apos;écrit &amp;amp;.</translation>
    </message>
    <message>
        <source>A NUL byte is not allowed.</source>
        <translation>Un octet NUL n&apos;est pas permis.</translation>
    </message>
    <message>
        <source>The bytes here are not valid UTF-8, or encode a character that XML does not allow.</source>
        <translation>Ces octets ne sont pas de l&apos;UTF-8 valide, ou codent un caractère que XML n&apos;autorise pas.</translation>
    </message>
    <message>
        <source>A &quot;&lt;&quot; starts a tag here; write &amp;lt; for the character itself.</source>
        <translation>Un «&#xa0;&lt;&#xa0;» commence ici une balise ; le caractère lui-même s&apos;écrit &amp;lt;.</translation>
    </message>
    <message>
        <source>The text is not well-formed XML.</source>
        <translation>Le texte n&apos;est pas du XML bien formé.</translation>
    </message>
    <message>
        <source>The text is not well-formed XML: %1.</source>
        <translation>Le texte n&apos;est pas du XML bien formé : %1.</translation>
    </message>
    <message>
        <source>A control character is not allowed.</source>
        <translation>Un caractère de contrôle n&apos;est pas permis.</translation>
    </message>
    <message>
        <source>The character &quot;%1&quot; is not allowed here.</source>
        <translation>Le caractère «&#xa0;%1&#xa0;» n&apos;est pas permis ici.</translation>
    </message>
    <message>
        <source>The manifest ends in the middle of a tag or character.</source>
        <translation>Le manifeste s&apos;arrête au milieu d&apos;une balise ou d&apos;un caractère.</translation>
    </message>
    <message>
        <source>The manifest ends in the middle of a CDATA section.</source>
        <translation>Le manifeste s&apos;arrête au milieu d&apos;une section CDATA.</translation>
    </message>
    <message>
        <source>The script ends in the middle of a tag or character.</source>
        <translation>Le script s&apos;arrête au milieu d&apos;une balise ou d&apos;un caractère.</translation>
    </message>
    <message>
        <source>The script ends in the middle of a CDATA section.</source>
        <translation>Le script s&apos;arrête au milieu d&apos;une section CDATA.</translation>
    </message>
    <message>
        <source>The end tag does not match the open element.</source>
        <translation>La balise de fin ne correspond pas à l&apos;élément ouvert.</translation>
    </message>
    <message>
        <source>An attribute occurs twice on one element.</source>
        <translation>Un attribut figure deux fois sur un même élément.</translation>
    </message>
    <message>
        <source>The entity is not defined; only &amp;amp;, &amp;lt;, &amp;gt;, &amp;quot; and &amp;apos; are.</source>
        <translation>L&apos;entité n&apos;est pas définie ; seules &amp;amp;, &amp;lt;, &amp;gt;, &amp;quot; et &amp;apos; le sont.</translation>
    </message>
    <message>
        <source>The text is not XML: it does not start with a tag.</source>
        <translation>Le texte n&apos;est pas du XML : il ne commence pas par une balise.</translation>
    </message>
    <message>
        <source>The reference denotes a character that XML does not allow.</source>
        <translation>La référence désigne un caractère que XML n&apos;autorise pas.</translation>
    </message>
    <message>
        <source>There is content after the end of the root element.</source>
        <translation>Il y a du contenu après la fin de l&apos;élément racine.</translation>
    </message>
    <message>
        <source>The XML declaration must be at the very start.</source>
        <translation>La déclaration XML n&apos;est pas au tout début.</translation>
    </message>
    <message>
        <source>The name of a processing instruction, &quot;%1&quot;, cannot contain a colon.</source>
        <translation>Le nom d&apos;une instruction de traitement, «&#xa0;%1&#xa0;», ne peut pas contenir de deux-points.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is not a prefix and a name with a colon between them.</source>
        <translation>Le nom «&#xa0;%1&#xa0;» n&apos;est pas formé d&apos;un préfixe et d&apos;un nom séparés par un deux-points.</translation>
    </message>
    <message>
        <source>The prefix &quot;%1&quot; is declared without a namespace.</source>
        <translation>Le préfixe «&#xa0;%1&#xa0;» est déclaré sans espace de noms.</translation>
    </message>
    <message>
        <source>The prefix &quot;%1&quot; is not declared.</source>
        <translation>Le préfixe «&#xa0;%1&#xa0;» n&apos;est pas déclaré.</translation>
    </message>
    <message>
        <source>The declaration &quot;%1&quot; is of a reserved prefix or namespace.</source>
        <translation>La déclaration «&#xa0;%1&#xa0;» concerne un préfixe ou un espace de noms réservé.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; occurs twice in the same namespace.</source>
        <translation>L&apos;attribut «&#xa0;%1&#xa0;» figure deux fois dans le même espace de noms.</translation>
    </message>
    <message>
        <source>The root element is &lt;%1&gt; instead of &lt;package&gt;.</source>
        <translation>L&apos;élément racine est &lt;%1&gt; au lieu de &lt;package&gt;.</translation>
    </message>
    <message>
        <source>The root element &lt;package&gt; is in the namespace &quot;%1&quot;; a manifest has no namespace.</source>
        <translation>L&apos;élément racine &lt;package&gt; est dans l&apos;espace de noms «&#xa0;%1&#xa0;» ; un manifeste n&apos;en a pas.</translation>
    </message>
    <message>
        <source>Text is not allowed in &lt;%1&gt;.</source>
        <translation>Du texte n&apos;est pas permis dans &lt;%1&gt;.</translation>
    </message>
    <message>
        <source>The element %1 occurs twice in %2.</source>
        <translation>L&apos;élément %1 figure deux fois dans %2.</translation>
    </message>
    <message>
        <source>The manifest is empty.</source>
        <translation>Le manifeste est vide.</translation>
    </message>
    <message>
        <source>The manifest ends before its root element.</source>
        <translation>Le manifeste s&apos;arrête avant son élément racine.</translation>
    </message>
    <message>
        <source>The manifest ends while %1 is open.</source>
        <translation>Le manifeste s&apos;arrête alors que %1 est ouvert.</translation>
    </message>
    <message>
        <source>The format &quot;%1&quot; is newer than the one that this version reads, &quot;%2&quot;.</source>
        <translation>Le format «&#xa0;%1&#xa0;» est plus récent que celui que lit cette version, «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The format &quot;%1&quot; is unknown; this version reads &quot;%2&quot;.</source>
        <translation>Le format «&#xa0;%1&#xa0;» est inconnu ; cette version lit «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The element &lt;%1&gt; lacks the attribute &quot;%2&quot;.</source>
        <translation>Il manque à l&apos;élément &lt;%1&gt; l&apos;attribut «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; of &lt;%2&gt; is longer than 4 KiB.</source>
        <translation>L&apos;attribut «&#xa0;%1&#xa0;» de &lt;%2&gt; dépasse 4 Kio.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; of &lt;%2&gt; is &quot;%3&quot; instead of &quot;true&quot; or &quot;false&quot;.</source>
        <translation>L&apos;attribut «&#xa0;%1&#xa0;» de &lt;%2&gt; vaut «&#xa0;%3&#xa0;» au lieu de «&#xa0;true&#xa0;» ou «&#xa0;false&#xa0;».</translation>
    </message>
    <message>
        <source>A tag, comment or processing instruction is longer than 1 MiB.</source>
        <translation>Une balise, un commentaire ou une instruction de traitement dépasse 1 Mio.</translation>
    </message>
    <message>
        <source>More than %1 elements are nested.</source>
        <translation>Plus de %1 éléments sont imbriqués.</translation>
    </message>
    <message>
        <source>The element &lt;%1&gt; has more than %2 attributes.</source>
        <translation>L&apos;élément &lt;%1&gt; a plus de %2 attributs.</translation>
    </message>
    <message>
        <source>The field %1 contains the control character %2, which XML cannot represent.</source>
        <translation>Le champ %1 contient le caractère de contrôle %2, que XML ne peut pas contenir.</translation>
    </message>
    <message>
        <source>The package contains the control character %1, which XML cannot represent.</source>
        <translation>Le paquet contient le caractère de contrôle %1, que XML ne peut pas contenir.</translation>
    </message>
    <message>
        <source>The field %1 contains the byte %2, which does not start a valid XML character.</source>
        <translation>Le champ %1 contient l&apos;octet %2, qui ne commence aucun caractère que XML peut contenir.</translation>
    </message>
    <message>
        <source>The package contains the byte %1, which does not start a valid XML character.</source>
        <translation>Le paquet contient l&apos;octet %1, qui ne commence aucun caractère que XML peut contenir.</translation>
    </message>
    <message>
        <source>The field %1 cannot be saved: its key is longer than 4 KiB.</source>
        <translation>Le champ %1 ne peut pas être enregistré : sa clé dépasse 4 Kio.</translation>
    </message>
    <message>
        <source>The field %1 is too long to be saved: a tag holds at most 1 MiB.</source>
        <translation>Le champ %1 est trop long pour être enregistré : une balise contient au plus 1 Mio.</translation>
    </message>
    <message>
        <source>The package is too long to be saved: a tag holds at most 1 MiB.</source>
        <translation>Le paquet est trop long pour être enregistré : une balise contient au plus 1 Mio.</translation>
    </message>
    <message>
        <source>A &quot;.&quot; or &quot;[&quot; is missing after the selector.</source>
        <translation>Il manque un «&#xa0;.&#xa0;» ou un «&#xa0;[&#xa0;» après le sélecteur.</translation>
    </message>
    <message>
        <source>The name of a field is missing.</source>
        <translation>Il manque le nom d&apos;un champ.</translation>
    </message>
    <message>
        <source>The name of a field cannot contain &quot;]&quot; or &quot;\&quot;.</source>
        <translation>Le nom d&apos;un champ ne peut contenir ni «&#xa0;]&#xa0;» ni «&#xa0;\&#xa0;».</translation>
    </message>
    <message>
        <source>A &quot;\&quot; must precede &quot;]&quot;, &quot;\&quot; or &quot;+&quot;.</source>
        <translation>Un «&#xa0;\&#xa0;» doit précéder «&#xa0;]&#xa0;», «&#xa0;\&#xa0;» ou «&#xa0;+&#xa0;».</translation>
    </message>
    <message>
        <source>The &quot;]&quot; of this selector is missing.</source>
        <translation>Il manque le «&#xa0;]&#xa0;» de ce sélecteur.</translation>
    </message>
    <message>
        <source>The end tag has no start tag.</source>
        <translation>La balise de fin n&apos;a pas de balise de début.</translation>
    </message>
    <message>
        <source>The element &lt;speak&gt; is within another element; it can only be the root.</source>
        <translation>L&apos;élément &lt;speak&gt; est dans un autre élément ; il ne peut être que la racine.</translation>
    </message>
    <message>
        <source>The repeat &quot;%1&quot; is malformed; it is a number, or a range such as 0-1 or 1-.</source>
        <translation>La répétition «&#xa0;%1&#xa0;» est mal formée ; c&apos;est un nombre, ou un intervalle tel que 0-1 ou 1-.</translation>
    </message>
    <message>
        <source>There is text between the alternatives of &lt;one-of&gt;; each must be an &lt;item&gt;.</source>
        <translation>Il y a du texte à côté des choix de &lt;one-of&gt; ; chacun d&apos;eux est un &lt;item&gt;.</translation>
    </message>
    <message>
        <source>The script ends while %1 is open.</source>
        <translation>Le script s&apos;arrête alors que %1 est ouvert.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be saved: %2. The old content of &quot;%3&quot; is lost: %4.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» ne peut pas être enregistré : %2. L&apos;ancien contenu de «&#xa0;%3&#xa0;» est perdu : %4.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be saved: %2.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» ne peut pas être enregistré : %2.</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>c&apos;est un lien symbolique</translation>
    </message>
    <message>
        <source>it is a link to a missing file</source>
        <translation>c&apos;est un lien vers un fichier qui n&apos;existe pas</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n&apos;est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>another program has locked it</source>
        <translation>un autre programme l&apos;a verrouillé</translation>
    </message>
    <message>
        <source>another program has changed it since it was read</source>
        <translation>un autre programme l&apos;a modifié depuis sa lecture</translation>
    </message>
    <message>
        <source>another program has replaced it</source>
        <translation>un autre programme l&apos;a remplacé</translation>
    </message>
    <message>
        <source>%1, and its old content is lost; the new one is in &quot;%2&quot;</source>
        <translation>%1, et son ancien contenu est perdu ; le nouveau est dans «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>it is a device</source>
        <translation>c&apos;est un périphérique</translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>il dépasse %1</translation>
    </message>
</context>
<context>
    <name>zel-package</name>
    <message>
        <source>Cannot write to standard output: %1.</source>
        <translation>La sortie standard ne peut pas être écrite : %1.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>package</source>
        <translation>paquet</translation>
    </message>
    <message>
        <source>behaviors</source>
        <translation>comportements</translation>
    </message>
    <message>
        <source>names</source>
        <translation>noms</translation>
    </message>
    <message>
        <source>descr.</source>
        <translation>descr.</translation>
    </message>
    <message>
        <source>language</source>
        <translation>langue</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>tags</source>
        <translation>étiquettes</translation>
    </message>
    <message>
        <source>triggers</source>
        <translation>déclenchement</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>chargement</translation>
    </message>
    <message>
        <source>topics</source>
        <translation>sujets</translation>
    </message>
    <message>
        <source>The package only has descriptions in this language.</source>
        <translation>Le paquet est seulement décrit dans cette langue.</translation>
    </message>
    <message>
        <source>The package does not list this language.</source>
        <translation>Le paquet n&apos;indique pas cette langue.</translation>
    </message>
    <message>
        <source>rule</source>
        <translation>règle</translation>
    </message>
    <message>
        <source>severity</source>
        <translation>gravité</translation>
    </message>
    <message>
        <source>message</source>
        <translation>message</translation>
    </message>
    <message>
        <source>Standard input.</source>
        <translation>Entrée standard.</translation>
    </message>
    <message>
        <source>Write nothing; print the names of files that are not in canonical form.</source>
        <translation>N&apos;écrire aucun manifeste ; afficher les noms des fichiers qui n&apos;ont pas la forme canonique.</translation>
    </message>
    <message>
        <source>Rewrite manifests in canonical form</source>
        <translation>Réécrire des manifestes sous forme canonique</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a language code; did you mean %2?</source>
        <translation>&apos;%1&apos; n&apos;est pas un code de langue ; vouliez-vous dire %2 ?</translation>
    </message>
    <message>
        <source>code</source>
        <translation>code</translation>
    </message>
    <message>
        <source>speech</source>
        <translation>voix</translation>
    </message>
    <message>
        <source>native name</source>
        <translation>nom d&apos;origine</translation>
    </message>
    <message>
        <source>List the known languages</source>
        <translation>Énumérer les langues connues</translation>
    </message>
    <message>
        <source>The package&apos;s identifier: up to 50 of a-z, 0-9, &apos;_&apos; and &apos;-&apos;, but not only digits.</source>
        <translation>L&apos;identifiant du paquet : 50 caractères au plus parmi a-z, 0-9, &apos;_&apos; et &apos;-&apos;, pas seulement des chiffres.</translation>
    </message>
    <message>
        <source>The package&apos;s name, in the first language.</source>
        <translation>Le nom du paquet, dans la première langue.</translation>
    </message>
    <message>
        <source>A language that the package supports, such as fr_FR; may be repeated. The default is %1.</source>
        <translation>Une langue dans laquelle le paquet fonctionne, par exemple fr_FR ; peut être donnée plusieurs fois. %1 si aucune n&apos;est donnée.</translation>
    </message>
    <message>
        <source>FILE --uid UID [--name TEXT] [--language CODE]...</source>
        <translation>FICHIER --uid UID [--name TEXTE] [--language CODE]...</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Utilisation : %1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Show the version of the program.</source>
        <translation>Montrer la version du programme.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Montrer cette aide.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;%2</source>
        <translation>Il n&apos;y a pas d&apos;option &apos;%1&apos;%2</translation>
    </message>
    <message>
        <source>; &apos;%1 --help&apos; lists the options.</source>
        <translation> ; &apos;%1 --help&apos; énumère les options.</translation>
    </message>
    <message>
        <source>Unknown command &apos;%1&apos;%2</source>
        <translation>Il n&apos;y a pas de commande &apos;%1&apos;%2</translation>
    </message>
    <message>
        <source>The manifest is malformed.</source>
        <translation>Le manifeste est mal formé.</translation>
    </message>
    <message>
        <source>; &apos;zel-package explain&apos; lists the rules.</source>
        <translation> ; &apos;zel-package explain&apos; énumère les règles.</translation>
    </message>
    <message>
        <source>; did you mean &apos;%1&apos;?</source>
        <translation> ; vouliez-vous dire &apos;%1&apos; ?</translation>
    </message>
    <message>
        <source>Unknown rule &apos;%1&apos;%2</source>
        <translation>Il n&apos;y a pas de règle &apos;%1&apos;%2</translation>
    </message>
    <message>
        <source>Show every text in this language; &apos;!&apos; marks missing ones.</source>
        <translation>Montrer tous les textes dans cette langue ; &apos;!&apos; marque ceux qui manquent.</translation>
    </message>
    <message>
        <source>The output format: text or json.</source>
        <translation>La forme de la sortie : text ou json.</translation>
    </message>
    <message>
        <source>Unknown format &apos;%1&apos;%2</source>
        <translation>Il n&apos;y a pas de format &apos;%1&apos;%2</translation>
    </message>
    <message>
        <source>; it is either text or json.</source>
        <translation> ; c&apos;est text ou json.</translation>
    </message>
    <message>
        <source>--format json shows all languages and takes no --language.</source>
        <translation>--format json montre toutes les langues et n&apos;accepte pas --language.</translation>
    </message>
    <message>
        <source>FILE [--language CODE] [--format text|json]</source>
        <translation>FICHIER [--language CODE] [--format text|json]</translation>
    </message>
    <message>
        <source>missing in %1</source>
        <translation>manque en %1</translation>
    </message>
    <message>
        <source>this is the uid</source>
        <translation>ceci est l&apos;uid</translation>
    </message>
    <message>
        <source>type version</source>
        <translation>version de type</translation>
    </message>
    <message>
        <source>Runs in</source>
        <translation>Fonctionne en</translation>
    </message>
    <message>
        <source>Described in</source>
        <translation>Décrit en</translation>
    </message>
    <message>
        <source>the same languages</source>
        <translation>les mêmes langues</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identité</translation>
    </message>
    <message>
        <source>description</source>
        <translation>description</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>sans nom</translation>
    </message>
    <message>
        <source>%1 or later</source>
        <translation>%1 ou plus</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>jusqu&apos;à %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>head %1</source>
        <translation>tête %1</translation>
    </message>
    <message>
        <source>body %1</source>
        <translation>corps %1</translation>
    </message>
    <message>
        <source>any version</source>
        <translation>toutes versions</translation>
    </message>
    <message>
        <source>any robot</source>
        <translation>tout robot</translation>
    </message>
    <message>
        <source>robots</source>
        <translation>robots</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Requirements</source>
        <translation>Exigences</translation>
    </message>
    <message>
        <source>Translations</source>
        <translation>Traductions</translation>
    </message>
    <message>
        <source>%1 if</source>
        <translation>%1 si</translation>
    </message>
    <message>
        <source>this is the path</source>
        <translation>ceci est le chemin</translation>
    </message>
    <message>
        <source>nature</source>
        <translation>nature</translation>
    </message>
    <message>
        <source>permissions</source>
        <translation>permissions</translation>
    </message>
    <message>
        <source>Behaviors in %1</source>
        <translation>Comportements en %1</translation>
    </message>
    <message>
        <source>Dialogs</source>
        <translation>Dialogues</translation>
    </message>
    <message>
        <source>command</source>
        <translation>commande</translation>
    </message>
    <message>
        <source>starts</source>
        <translation>démarre</translation>
    </message>
    <message>
        <source>with the robot</source>
        <translation>avec le robot</translation>
    </message>
    <message>
        <source>on demand</source>
        <translation>à la demande</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Services</translation>
    </message>
    <message>
        <source>Texts in %1</source>
        <translation>Textes en %1</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Textes</translation>
    </message>
    <message>
        <source>missing in %1; this is %2</source>
        <translation>manque en %1 ; ceci est en %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1 ; %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be ignored.</source>
        <translation>&apos;%1&apos; ne peut pas être ignoré.</translation>
    </message>
    <message>
        <source>Checked %1 of %2</source>
        <translation>%1 vérifiés sur %2</translation>
    </message>
    <message>
        <source>Manifests: %1, errors: %2, warnings: %3</source>
        <translation>Manifestes : %1, erreurs : %2, avertissements : %3</translation>
    </message>
    <message>
        <source>, malformed: %1</source>
        <translation>, mal formés : %1</translation>
    </message>
    <message>
        <source>, unreadable: %1</source>
        <translation>, illisibles : %1</translation>
    </message>
    <message>
        <source>Write nothing; print the changes as a unified diff.</source>
        <translation>Ne rien écrire ; afficher ce qui changerait, sous forme de diff unifié.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form FIELD=VALUE, as in author=Ines or names[en_US]=Tea.</source>
        <translation>&apos;%1&apos; n&apos;est pas de la forme CHAMP=VALEUR, comme author=Ines ou names[en_US]=Tea.</translation>
    </message>
    <message>
        <source>Write to this file; the default, also &apos;-&apos;, is standard output.</source>
        <translation>Écrire dans ce fichier ; sur la sortie standard s&apos;il n&apos;est pas donné, ou pour &apos;-&apos;.</translation>
    </message>
    <message>
        <source>robot</source>
        <translation>robot</translation>
    </message>
    <message>
        <source>model</source>
        <translation>modèle</translation>
    </message>
    <message>
        <source>List the known robots</source>
        <translation>Énumérer les robots connus</translation>
    </message>
    <message>
        <source>Scripts in</source>
        <translation>Scripts en</translation>
    </message>
    <message>
        <source>Of each rule, only the first %1 findings are listed.</source>
        <translation>Pour chaque règle, seuls les %1 premiers problèmes sont indiqués.</translation>
    </message>
    <message>
        <source>It does not exist, so nothing is removed.</source>
        <translation>Il n&apos;y en a pas, donc rien n&apos;est supprimé.</translation>
    </message>
    <message>
        <source>This is an entry: an empty VALUE removes it, and &apos;%1.FIELD=VALUE&apos; sets one of its fields.</source>
        <translation>C&apos;est une entrée : une VALUE vide la supprime ; un de ses champs s&apos;écrit &apos;%1.FIELD=VALUE&apos;.</translation>
    </message>
    <message>
        <source>This is a list: &apos;%1[+]=VALUE&apos; adds to it, &apos;%1[+]@INDEX=VALUE&apos; at an index.</source>
        <translation>C&apos;est une liste : &apos;%1[+]=VALUE&apos; y ajoute, &apos;%1[+]@INDEX=VALUE&apos; à un index.</translation>
    </message>
    <message>
        <source>&apos;@INDEX&apos; with a value adds an entry, so it follows the key [+].</source>
        <translation>&apos;@INDEX&apos; avec une valeur ajoute une entrée, donc suit la clé [+].</translation>
    </message>
    <message>
        <source>Also removes %1.</source>
        <translation>Supprime aussi %1.</translation>
    </message>
    <message>
        <source>Set fields of manifests</source>
        <translation>Modifier des champs de manifestes</translation>
    </message>
    <message>
        <source>FILE... FIELD=VALUE... [--edits FILE] [--dry-run]</source>
        <translation>FILE... FIELD=VALUE... [--edits FILE] [--dry-run]</translation>
    </message>
    <message>
        <source>Print fields of a manifest</source>
        <translation>Afficher des champs d&apos;un manifeste</translation>
    </message>
    <message>
        <source>FILE FIELD...</source>
        <translation>FILE FIELD...</translation>
    </message>
    <message>
        <source>Prints the values of fields, named as in &apos;show --format json&apos;: author, names[fr_FR], behaviors[greet].tags[en_US][0]. For a list or an entry, such as names or behaviors[greet], prints FIELD=VALUE for each field in it. The exit status is 1 if the package has no such entry. &apos;-&apos; reads standard input.</source>
        <translation>Affiche les valeurs de champs, nommés comme dans &apos;show --format json&apos; : author, names[fr_FR], behaviors[greet].tags[en_US][0]. Pour une liste ou une entrée, comme names ou behaviors[greet], affiche FIELD=VALUE pour chacun de ses champs. Le code de sortie est 1 si le paquet n&apos;a pas cette entrée. &apos;-&apos; lit l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>The language &apos;%1&apos; is unknown, but its code is accepted.</source>
        <translation>La langue &apos;%1&apos; est inconnue, mais son code est accepté.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a language code; &apos;zel-package languages&apos; lists the known codes.</source>
        <translation>&apos;%1&apos; n&apos;est pas un code de langue ; &apos;zel-package languages&apos; affiche les codes connus.</translation>
    </message>
    <message>
        <source>The argument &apos;%1&apos; is not valid UTF-8.</source>
        <translation>L&apos;argument &apos;%1&apos; n&apos;est pas de l&apos;UTF-8 valide.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>A reason as a sentence of its own.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>[--format text|json]</source>
        <translation>[--format text|json]</translation>
    </message>
    <message>
        <source>Lists the known languages: the code used in manifests, the name, the code of the speech engine if it has a voice, and the native name. Manifests may also use other languages.</source>
        <translation>Affiche les langues connues : le code dans les manifestes, le nom, le code du moteur vocal s&apos;il a une voix, et le nom dans la langue elle-même. Les manifestes peuvent utiliser d&apos;autres langues.</translation>
    </message>
    <message>
        <source>Lists the robot families and models that a package may require, with the model to use in a robot requirement; it is empty for any robot. Manifests may also require other robots.</source>
        <translation>Affiche les robots qu&apos;un paquet peut exiger, familles et modèles, avec le modèle que nomme une exigence de robot ; il est vide pour n&apos;importe quel robot. Les manifestes peuvent exiger d&apos;autres robots.</translation>
    </message>
    <message>
        <source>--format json needs --check.</source>
        <translation>--format json exige --check.</translation>
    </message>
    <message>
        <source>FILE... [--check [--format text|json]]</source>
        <translation>FICHIER... [--check [--format text|json]]</translation>
    </message>
    <message>
        <source>Rewrites each FILE in canonical form, preserving comments, unknown elements and unknown attributes. Files already in canonical form are left unchanged. &apos;-&apos; reads standard input and writes to standard output.</source>
        <translation>Réécrit chaque FICHIER dans la forme canonique et conserve les commentaires, les éléments inconnus et les attributs inconnus. Un fichier déjà dans cette forme n&apos;est pas modifié. &apos;-&apos; lit l&apos;entrée standard et écrit sur la sortie standard.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid UID; &apos;zel-package explain uid-invalid&apos; describes one.</source>
        <translation>&apos;%1&apos; n&apos;est pas un UID valide ; &apos;zel-package explain uid-invalid&apos; en décrit la forme.</translation>
    </message>
    <message>
        <source>Created %1, version %2. Still needed: %3.</source>
        <translation>%1 créé, version %2. Il manque encore : %3.</translation>
    </message>
    <message>
        <source>Missing option --uid UID.</source>
        <translation>Il manque l&apos;option --uid UID.</translation>
    </message>
    <message>
        <source>Create a manifest</source>
        <translation>Créer un manifeste</translation>
    </message>
    <message>
        <source>Creates FILE, the manifest of a new package with version 1.0.0. Never overwrites an existing file. &apos;-&apos; writes to standard output.</source>
        <translation>Crée FICHIER, le manifeste d&apos;un nouveau paquet en version 1.0.0. Un fichier existant n&apos;est jamais écrasé. &apos;-&apos; écrit sur la sortie standard.</translation>
    </message>
    <message>
        <source>%1: Malformed speech script (line %2, column %3): %4</source>
        <translation>%1 : script de parole mal formé (ligne %2, colonne %3) : %4</translation>
    </message>
    <message>
        <source>The output cannot be the manifest itself.</source>
        <translation>La sortie ne peut pas être le manifeste lui-même.</translation>
    </message>
    <message>
        <source>--format json prints to standard output and needs an --output.</source>
        <translation>--format json écrit sur la sortie standard et exige --output.</translation>
    </message>
    <message>
        <source>This manifest was published before; the scripts stored beside its texts are dropped.</source>
        <translation>Ce manifeste a déjà été publié ; les scripts conservés à côté de ses textes sont supprimés.</translation>
    </message>
    <message>
        <source>Write a manifest for publication</source>
        <translation>Écrire un manifeste pour la publication</translation>
    </message>
    <message>
        <source>FILE [-o OUT] [--format text|json]</source>
        <translation>FICHIER [-o SORTIE] [--format text|json]</translation>
    </message>
    <message>
        <source>Writes the manifest in FILE for publication: removes texts in languages that the package no longer offers, and replaces speech scripts by plain text, keeping the scripts in a private-use variant of their language. If a text is a malformed script, reports it and writes nothing. &apos;-&apos; reads standard input.</source>
        <translation>Écrit le manifeste de FICHIER pour la publication : sans les textes dans des langues que le paquet ne propose plus, et avec du texte simple à la place des scripts de parole, conservés dans une variante à usage privé de leur langue. Si un texte est un script mal formé, le signale et n&apos;écrit rien. &apos;-&apos; lit l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>Creates, shows, checks, edits and rewrites the manifests of robot application packages.</source>
        <translation>Crée, affiche, vérifie, modifie et réécrit les manifestes de paquets d&apos;applications pour robots.</translation>
    </message>
    <message>
        <source>Show this help; after a command, its help.</source>
        <translation>Afficher cette aide ; après une commande, l&apos;aide de celle-ci.</translation>
    </message>
    <message>
        <source>Missing argument %1; usage: %2</source>
        <translation>Il manque l&apos;argument %1 ; utilisation : %2</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argument inattendu &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The value cannot be empty.</source>
        <translation>La valeur ne peut pas être vide.</translation>
    </message>
    <message>
        <source>It needs a language, as in %1[en_US].</source>
        <translation>Il faut une langue, comme dans %1[en_US].</translation>
    </message>
    <message>
        <source>First apply the edits in this JSON file (see schema/edits.schema.json); &apos;-&apos; is standard input.</source>
        <translation>Appliquer d&apos;abord les modifications de ce fichier JSON, que décrit schema/edits.schema.json ; &apos;-&apos; est l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>Missing argument FILE.</source>
        <translation>Il manque l&apos;argument FICHIER.</translation>
    </message>
    <message>
        <source>&apos;-&apos; can be given only once.</source>
        <translation>&apos;-&apos; ne peut être donné qu&apos;une fois.</translation>
    </message>
    <message>
        <source>Sets fields, named as in &apos;show --format json&apos;: author=Ines, names[fr_FR]=Goûter, robotRequirements[0].maxBodyVersion=3.1, behaviors[greet].tags[en_US][0]=hello. An empty VALUE clears a text or removes an entry or item: behaviors[greet]=. The key [+] adds to a list: supportedLanguages[+]=fr_FR, behaviors[+].path=greet; &apos;@INDEX&apos; adds at an index, counted from 0: supportedLanguages[+]@0=fr_FR. &apos;ENTRY@INDEX&apos; moves an entry: behaviors[greet]@0. Adding an existing entry or removing a missing one changes nothing, so commands can be repeated. If one field is wrong, no file is changed. Files are rewritten in canonical form without losing content. &apos;-&apos; reads standard input and writes to standard output; give a file whose name contains &apos;=&apos; with its folder, as in ./a=b.xml.</source>
        <translation>Modifie des champs, nommés comme dans &apos;show --format json&apos; : author=Ines, names[fr_FR]=Goûter, robotRequirements[0].maxBodyVersion=3.1, behaviors[greet].tags[en_US][0]=hello. Une VALUE vide efface un texte et supprime une entrée ou un élément : behaviors[greet]=. La clé [+] en ajoute à une liste : supportedLanguages[+]=fr_FR, behaviors[+].path=greet ; &apos;@INDEX&apos; l&apos;ajoute à un index, à partir de 0 : supportedLanguages[+]@0=fr_FR. &apos;ENTRY@INDEX&apos; déplace une entrée : behaviors[greet]@0. Ajouter une entrée présente ou supprimer une entrée absente ne change rien, si bien que les commandes peuvent être répétées. Tous les champs de tous les fichiers sont modifiés ou, si l&apos;un d&apos;eux est faux, aucun. Les fichiers sont réécrits sous la forme canonique sans rien perdre. &apos;-&apos; lit l&apos;entrée standard et écrit sur la sortie standard ; un fichier dont le nom contient &apos;=&apos; est donné avec son dossier, comme ./a=b.xml.</translation>
    </message>
    <message>
        <source>The package has no such entry.</source>
        <translation>Le paquet n&apos;a pas cette entrée.</translation>
    </message>
    <message>
        <source>Show a manifest</source>
        <translation>Afficher un manifeste</translation>
    </message>
    <message>
        <source>Shows all fields of the manifest in FILE, and how much of it is translated. A missing text is replaced as in an application: by the text in the default language or, for names, by the uid or path. &apos;-&apos; reads standard input.</source>
        <translation>Affiche tous les champs du manifeste dans FICHIER et l&apos;avancement de sa traduction. Un texte manquant est remplacé comme dans une application : par le texte dans la langue par défaut, puis, pour un nom, par l&apos;uid ou le chemin. &apos;-&apos; lit l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>users may request it</source>
        <translation>les utilisateurs peuvent le demander</translation>
    </message>
    <message>
        <source>Explain the rules of &apos;validate&apos;</source>
        <translation>Expliquer les règles de &apos;validate&apos;</translation>
    </message>
    <message>
        <source>[ID] [--format text|json]</source>
        <translation>[ID] [--format text|json]</translation>
    </message>
    <message>
        <source>Explains the purpose of the rule ID of &apos;validate&apos; and how to correct its findings; without an ID, lists all rules.</source>
        <translation>Explique à quoi sert la règle ID de &apos;validate&apos; et comment corriger ce qu&apos;elle signale ; sans ID, affiche toutes les règles.</translation>
    </message>
    <message>
        <source>, notes: %1</source>
        <translation>, remarques : %1</translation>
    </message>
    <message>
        <source>The version of a package has three fields, so it becomes %1.</source>
        <translation>La version d&apos;un paquet a trois nombres, elle devient donc %1.</translation>
    </message>
    <message>
        <source>Exchanges the texts of packages with translators.</source>
        <translation>Échange les textes des paquets avec les traducteurs.</translation>
    </message>
    <message>
        <source>; &apos;%1 --help&apos; lists the commands.</source>
        <translation> ; &apos;%1 --help&apos; énumère les commandes.</translation>
    </message>
    <message>
        <source>Missing command; &apos;%1 --help&apos; lists the commands.</source>
        <translation>Il manque une commande ; &apos;%1 --help&apos; affiche les commandes.</translation>
    </message>
    <message>
        <source>The language to translate into.</source>
        <translation>La langue vers laquelle traduire.</translation>
    </message>
    <message>
        <source>The language to translate from; by default %1 or, if the package does not support it, its first language.</source>
        <translation>La langue à partir de laquelle traduire ; par défaut %1 ou, si le paquet ne fonctionne pas dans cette langue, sa première langue.</translation>
    </message>
    <message>
        <source>Write only untranslated texts.</source>
        <translation>N&apos;écrire que les textes qui ne sont pas traduits.</translation>
    </message>
    <message>
        <source>Missing option --language CODE.</source>
        <translation>Il manque l&apos;option --language CODE.</translation>
    </message>
    <message>
        <source>Export texts for translators</source>
        <translation>Écrire des textes pour les traducteurs</translation>
    </message>
    <message>
        <source>FILE --language CODE [--source CODE] [--missing] [-o OUT]</source>
        <translation>FICHIER --language CODE [--source CODE] [--missing] [-o SORTIE]</translation>
    </message>
    <message>
        <source>Writes the texts of a manifest as XLIFF 1.2 for translation tools: names, descriptions, tags, trigger sentences and loading responses. &apos;texts import&apos; reads it back. &apos;-&apos; reads standard input.</source>
        <translation>Écrit les textes d&apos;un manifeste en XLIFF 1.2, que lisent les outils de traduction : noms, descriptions, étiquettes, phrases de déclenchement et réponses de chargement. &apos;texts import&apos; les relit. &apos;-&apos; lit l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>Also import texts whose source has changed since the export.</source>
        <translation>Importer aussi là où le texte source a changé depuis l&apos;exportation.</translation>
    </message>
    <message>
        <source>Texts: %1 imported, %2 unchanged, %3 untranslated, %4 skipped.</source>
        <translation>Textes : importés %1, inchangés %2, non traduits %3, ignorés %4.</translation>
    </message>
    <message>
        <source>Import texts from translators</source>
        <translation>Reprendre les textes des traducteurs</translation>
    </message>
    <message>
        <source>FILE XLIFF... [--dry-run] [--force]</source>
        <translation>FICHIER XLIFF... [--dry-run] [--force]</translation>
    </message>
    <message>
        <source>Imports translations from XLIFF files written by &apos;texts export&apos; into the manifest in FILE. Lists grow to the translator&apos;s length, and a new language becomes a description language. Texts whose behavior was removed or whose source has changed are reported and skipped. If a text is a malformed speech script, nothing is imported. The exit status is 1 if a text is skipped. &apos;-&apos; reads standard input; as FILE, it also writes to standard output.</source>
        <translation>Met dans le manifeste FICHIER les traductions des fichiers XLIFF que &apos;texts export&apos; a écrits. Les listes s&apos;allongent selon le traducteur, et une nouvelle langue devient une langue de description. Les textes dont le comportement a disparu ou dont la source a changé sont signalés et ignorés. Si un texte est un script vocal mal formé, rien n&apos;est importé. Le code de sortie est 1 si un texte est ignoré. &apos;-&apos; lit l&apos;entrée standard ; comme FICHIER, il écrit sur la sortie standard.</translation>
    </message>
    <message>
        <source>behavior</source>
        <translation>comportement</translation>
    </message>
    <message>
        <source>Show how much of packages is translated</source>
        <translation>Montrer l&apos;avancement de la traduction</translation>
    </message>
    <message>
        <source>FILE... [--format text|json]</source>
        <translation>FICHIER... [--format text|json]</translation>
    </message>
    <message>
        <source>Counts translated and required texts by language and by behavior. A list counts as one text. &apos;-&apos; reads standard input.</source>
        <translation>Compte, par langue et par comportement, les textes traduits parmi ceux qui sont nécessaires. Une liste compte une fois. &apos;-&apos; lit l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>The baseline is not valid JSON: %1.</source>
        <translation>La référence n&apos;est pas du JSON valide : %1.</translation>
    </message>
    <message>
        <source>The file is not a baseline of format 1, which --write-baseline writes.</source>
        <translation>Le fichier n&apos;est pas une référence au format 1, telle que --write-baseline l&apos;écrit.</translation>
    </message>
    <message>
        <source>Unknown setting &apos;%1&apos;%2</source>
        <translation>Il n&apos;y a pas de réglage &apos;%1&apos;%2</translation>
    </message>
    <message>
        <source>; it is one of %1.</source>
        <translation> ; c&apos;est l&apos;un de %1.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must be a list of tables, [[%1]].</source>
        <translation>&apos;%1&apos; doit être une liste de tables, [[%1]].</translation>
    </message>
    <message>
        <source>The override has no &apos;path&apos;.</source>
        <translation>L&apos;exception n&apos;a pas de &apos;path&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must be a table.</source>
        <translation>&apos;%1&apos; doit être une table.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be &quot;%2&quot;%3</source>
        <translation>&apos;%1&apos; ne peut pas être &quot;%2&quot;%3</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must be a string in quotes.</source>
        <translation>&apos;%1&apos; doit être un texte entre guillemets.</translation>
    </message>
    <message>
        <source>The configuration is not valid TOML: %1.</source>
        <translation>La configuration n&apos;est pas du TOML valide : %1.</translation>
    </message>
    <message>
        <source>The folder contains no manifest.xml.</source>
        <translation>Il n&apos;y a pas de manifest.xml dans le dossier.</translation>
    </message>
    <message>
        <source>The baseline lists &apos;%1&apos;, which is no longer found here.</source>
        <translation>La référence mentionne ici &apos;%1&apos;, qui n&apos;est plus constaté.</translation>
    </message>
    <message>
        <source>A baseline lists known findings, which are not reported. An outdated entry would hide the same finding if it came back.</source>
        <translation>Une référence énumère les constats connus, qui ne sont pas signalés. Une entrée dont le constat a disparu cacherait ce constat s&apos;il revenait.</translation>
    </message>
    <message>
        <source>Update the baseline with --write-baseline.</source>
        <translation>Réécrivez la référence avec --write-baseline.</translation>
    </message>
    <message>
        <source>The comment ignores &apos;%1&apos;, which is not found here.</source>
        <translation>Le commentaire ignore &apos;%1&apos;, qui n&apos;est pas constaté ici.</translation>
    </message>
    <message>
        <source>A comment &apos;zel-package: ignore&apos; applies to the element after it. If its rules find nothing, it would hide later findings.</source>
        <translation>Un commentaire &apos;zel-package: ignore&apos; porte sur l&apos;élément qui le suit. Si ses règles n&apos;y constatent rien, il cacherait des constats ultérieurs.</translation>
    </message>
    <message>
        <source>Remove the rule from the comment, or the comment.</source>
        <translation>Retirez la règle du commentaire, ou le commentaire.</translation>
    </message>
    <message>
        <source>A comment &apos;zel-package: ignore&apos; names a rule that does not exist, so it has no effect.</source>
        <translation>Un commentaire &apos;zel-package: ignore&apos; nomme une règle qui n&apos;existe pas et reste donc sans effet.</translation>
    </message>
    <message>
        <source>Use the id of a rule; &apos;zel-package explain&apos; lists them.</source>
        <translation>Écrivez l&apos;identifiant d&apos;une règle ; &apos;zel-package explain&apos; les affiche.</translation>
    </message>
    <message>
        <source>Correct the file at the reported line and column, then check it again.</source>
        <translation>Corrigez le fichier à la ligne et à la colonne indiquées, puis vérifiez-le de nouveau.</translation>
    </message>
    <message>
        <source>, to be fixed: %1</source>
        <translation>, à corriger : %1</translation>
    </message>
    <message>
        <source>, fixed: %1</source>
        <translation>, corrigés : %1</translation>
    </message>
    <message>
        <source>Check manifests, and fix them</source>
        <translation>Vérifier des manifestes et les corriger</translation>
    </message>
    <message>
        <source>FILE|FOLDER... [--format text|json|sarif|github] [--fail-on error|warning|note] [--ignore ID[,ID]...]... [--fix] [--unsafe-fixes] [--diff] [--config FILE] [--baseline FILE] [--write-baseline FILE] [--stdin-name NAME] [--quiet] [--color auto|always|never] [--explain]</source>
        <translation>FICHIER|DOSSIER... [--format text|json|sarif|github] [--fail-on error|warning|note] [--ignore ID[,ID]...]... [--fix] [--unsafe-fixes] [--diff] [--config FICHIER] [--baseline FICHIER] [--write-baseline FICHIER] [--stdin-name NOM] [--quiet] [--color auto|always|never] [--explain]</translation>
    </message>
    <message>
        <source>Prints the findings in each manifest by line, as FILE:LINE:COLUMN: error: text [id]; a missing field is reported at the element that should contain it. A FOLDER means every manifest.xml in or below it. &apos;zel-package explain ID&apos; explains a rule. &apos;-&apos; reads standard input; with --fix, the manifest goes to standard output and the findings to standard error.</source>
        <translation>Affiche les constats de chaque manifeste par ligne, sous la forme FICHIER:LIGNE:COLONNE: error: texte [id] ; un champ absent a la place de l&apos;élément qui devrait le contenir. Un DOSSIER désigne chaque manifest.xml qu&apos;il contient, sous-dossiers compris. &apos;zel-package explain ID&apos; explique une règle. &apos;-&apos; lit l&apos;entrée standard ; avec --fix, le manifeste va sur la sortie standard et les constats sur la sortie d&apos;erreur.</translation>
    </message>
    <message>
        <source>&apos;--%1&apos; cannot be &apos;%2&apos;%3</source>
        <translation>&apos;--%1&apos; ne peut pas être &apos;%2&apos;%3</translation>
    </message>
    <message>
        <source>The output format: text (the default), json, sarif or github.</source>
        <translation>La forme de la sortie : text (par défaut), json, sarif ou github.</translation>
    </message>
    <message>
        <source>The lowest severity that sets the exit status to 1: error (the default), warning or note.</source>
        <translation>La plus faible gravité qui donne le code de retour 1 : error (par défaut), warning ou note.</translation>
    </message>
    <message>
        <source>Do not report findings of these rules; separate IDs by commas, or repeat the option.</source>
        <translation>Omettre les constats de ces règles ; les ID sont séparés par des virgules, et l&apos;option peut être donnée plusieurs fois.</translation>
    </message>
    <message>
        <source>Apply the safe fixes, and report the remaining findings.</source>
        <translation>Faire les corrections sûres et signaler les constats restants.</translation>
    </message>
    <message>
        <source>Also apply fixes that may change the meaning.</source>
        <translation>Faire aussi les corrections qui peuvent changer le sens.</translation>
    </message>
    <message>
        <source>Write nothing; print the fixes as a unified diff.</source>
        <translation>Ne rien écrire ; afficher les corrections sous forme de diff unifié.</translation>
    </message>
    <message>
        <source>Use this configuration instead of the nearest .zel-package.toml.</source>
        <translation>Utiliser cette configuration au lieu du .zel-package.toml le plus proche.</translation>
    </message>
    <message>
        <source>Do not report the findings listed in this file.</source>
        <translation>Omettre les constats que ce fichier énumère.</translation>
    </message>
    <message>
        <source>Write the findings to this file instead.</source>
        <translation>Écrire plutôt les constats dans ce fichier.</translation>
    </message>
    <message>
        <source>The name of the manifest from standard input.</source>
        <translation>Le nom du manifeste lu sur l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>Print only findings that set the exit status to 1, and no summary.</source>
        <translation>N&apos;afficher que les constats qui donnent le code de retour 1, et aucun résumé.</translation>
    </message>
    <message>
        <source>Whether to use color: auto (the default, on a terminal), always or never.</source>
        <translation>Utiliser la couleur : auto (par défaut, dans un terminal), always ou never.</translation>
    </message>
    <message>
        <source>Explain each rule with findings at the end.</source>
        <translation>Expliquer, à la fin, chaque règle qui a des constats.</translation>
    </message>
    <message>
        <source>&apos;--%1&apos; requires standard input, &apos;-&apos;, as a FILE.</source>
        <translation>&apos;--%1&apos; exige &apos;-&apos;, l&apos;entrée standard, comme FICHIER.</translation>
    </message>
    <message>
        <source>Known findings: %1</source>
        <translation>Constats connus : %1</translation>
    </message>
    <message>
        <source>Only comments, unknown content or the notation of values differ.</source>
        <translation>Seuls des commentaires, du contenu inconnu ou la notation de valeurs diffèrent.</translation>
    </message>
    <message>
        <source>Compare two manifests by field</source>
        <translation>Comparer deux manifestes champ par champ</translation>
    </message>
    <message>
        <source>A B [--format text|json]</source>
        <translation>A B [--format text|json]</translation>
    </message>
    <message>
        <source>Prints the changes from manifest A to manifest B, one per line. With --format json, prints them as edits for &apos;set A --edits&apos;. The exit status is 0 if the manifests are equal, 1 if they differ, and 2 after an error. One of them may be &apos;-&apos; for standard input.</source>
        <translation>Affiche les modifications qui mènent du manifeste A au manifeste B, une par ligne. Avec --format json, les affiche comme des éditions que &apos;set A --edits&apos; applique. Le code de sortie est 0 pour des manifestes égaux, 1 pour des manifestes différents et 2 pour une erreur. &apos;-&apos; pour l&apos;un d&apos;eux lit l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>Write to this file instead of OURS; &apos;-&apos; is standard output.</source>
        <translation>Écrire dans ce fichier plutôt que dans OURS ; &apos;-&apos; est la sortie standard.</translation>
    </message>
    <message>
        <source>The file contains conflict markers of git; resolve these conflicts first.</source>
        <translation>Il contient des marques de conflit de git ; résolvez d&apos;abord ces conflits.</translation>
    </message>
    <message>
        <source>Removed by ours, %1 in theirs.</source>
        <translation>Supprimé dans OURS, %1 dans THEIRS.</translation>
    </message>
    <message>
        <source>%1 in ours, removed by theirs.</source>
        <translation>%1 dans OURS, supprimé dans THEIRS.</translation>
    </message>
    <message>
        <source>%1 in ours, %2 in theirs.</source>
        <translation>%1 dans OURS, %2 dans THEIRS.</translation>
    </message>
    <message>
        <source>Merge the changes of two manifests by field</source>
        <translation>Fusionner les modifications de deux manifestes champ par champ</translation>
    </message>
    <message>
        <source>Merges the changes from BASE to THEIRS into OURS, field by field. If both sides changed a field differently, the value in OURS is kept, and a comment before the field shows both values; &apos;validate&apos; reports it until it is removed. The exit status is 0 after a merge without conflicts, 1 after a merge with conflicts, and 2 after an error, which leaves OURS unchanged. An empty file is a manifest without fields. One of the files may be &apos;-&apos; for standard input.</source>
        <translation>Fusionne dans OURS, champ par champ, les modifications qui mènent de BASE à THEIRS. Quand les deux côtés ont changé un champ différemment, OURS reste, et un commentaire devant le champ contient les deux valeurs ; &apos;validate&apos; le signale jusqu&apos;à sa suppression. Le code de sortie est 0 après une fusion sans conflit, 1 après une fusion avec conflits, et 2 pour une erreur, qui laisse OURS inchangé. Un fichier vide est un manifeste sans aucun champ. &apos;-&apos; pour l&apos;un des fichiers lit l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>The file is not well-formed XML in UTF-8, or has content that is not allowed at this position. Nothing else in it is checked, and the exit status is 2.</source>
        <translation>Le fichier n&apos;est pas du XML bien formé en UTF-8, ou a un contenu qu&apos;un manifeste ne peut pas avoir à cet endroit. Rien d&apos;autre n&apos;y est vérifié, et le code de sortie est 2.</translation>
    </message>
    <message>
        <source>  For example:</source>
        <translation>  Par exemple :</translation>
    </message>
    <message>
        <source>Use PATH for the manifest in messages: git merges copies, and passes the path as %P.</source>
        <translation>Appeler le manifeste PATH dans les messages : git fusionne des copies et transmet le chemin par %P.</translation>
    </message>
    <message>
        <source>%1 (base)</source>
        <translation>%1 (BASE)</translation>
    </message>
    <message>
        <source>%1 (theirs)</source>
        <translation>%1 (THEIRS)</translation>
    </message>
    <message>
        <source>BASE OURS THEIRS [-o OUT] [--path PATH]</source>
        <translation>BASE OURS THEIRS [-o OUT] [--path PATH]</translation>
    </message>
    <message>
        <source>The baseline lists findings in &apos;%1&apos;, which no longer exists.</source>
        <translation>La référence mentionne des constats dans &apos;%1&apos;, qui n&apos;existe plus.</translation>
    </message>
    <message>
        <source>&apos;--%1&apos; requires a file name.</source>
        <translation>&apos;--%1&apos; exige un nom de fichier.</translation>
    </message>
    <message>
        <source>The name of a file is empty.</source>
        <translation>Le nom d&apos;un fichier est vide.</translation>
    </message>
</context>
</TS>
