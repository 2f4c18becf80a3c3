<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>zel-package</name>
    <message>
        <source>Standard output cannot be written: %1.</source>
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
        <source>The package is only described in this language.</source>
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
        <source>Explain what &apos;validate&apos; finds</source>
        <translation>Expliquer ce que trouve &apos;validate&apos;</translation>
    </message>
    <message>
        <source>[ID]</source>
        <translation>[ID]</translation>
    </message>
    <message>
        <source>Tells what the rule ID of &apos;validate&apos; is for and how to mend what it finds; without an ID, lists all rules.</source>
        <translation>Dit à quoi sert la règle ID de &apos;validate&apos; et comment corriger ce qu&apos;elle trouve ; sans ID, énumère toutes les règles.</translation>
    </message>
    <message>
        <source>Standard input.</source>
        <translation>Entrée standard.</translation>
    </message>
    <message>
        <source>en-US</source>
        <extracomment>The language of this translation, as RFC 5646 writes it.</extracomment>
        <translation>fr</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>colonne %1</translation>
    </message>
    <message>
        <source>Write no manifest; print the names of the files that are not in the canonical form.</source>
        <translation>N&apos;écrire aucun manifeste ; afficher les noms des fichiers qui n&apos;ont pas la forme canonique.</translation>
    </message>
    <message>
        <source>Rewrite manifests in the canonical form</source>
        <translation>Réécrire des manifestes sous forme canonique</translation>
    </message>
    <message>
        <source>FILE... [--check]</source>
        <translation>FICHIER... [--check]</translation>
    </message>
    <message>
        <source>Rewrites each FILE in the canonical form, with nothing lost: comments, and elements and attributes that are not known, stay. A file that is in that form already is left alone. &apos;-&apos; takes standard input and writes to standard output.</source>
        <translation>Réécrit chaque FICHIER sous forme canonique sans rien perdre : les commentaires, et les éléments et attributs inconnus, restent. Un fichier qui a déjà cette forme n&apos;est pas touché. &apos;-&apos; lit l&apos;entrée standard et écrit sur la sortie standard.</translation>
    </message>
    <message>
        <source>The language &apos;%1&apos; is not a known one.</source>
        <translation>La langue &apos;%1&apos; n&apos;est pas connue.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a language code; &apos;zel-package languages&apos; lists those that are known.</source>
        <translation>&apos;%1&apos; n&apos;est pas un code de langue ; &apos;zel-package languages&apos; énumère ceux qui sont connus.</translation>
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
        <source>Lists the languages that are known: the code that manifests use, the name, the code of the speech engine where it has a voice, and the name in the language itself. A manifest may use others too.</source>
        <translation>Énumère les langues connues : le code qu&apos;utilisent les manifestes, le nom, le code du moteur vocal s&apos;il a une voix, et le nom dans la langue elle-même. Un manifeste peut en utiliser d&apos;autres.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>Le fichier ne peut pas être ouvert : %1.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>Le fichier ne peut pas être lu : %1.</translation>
    </message>
    <message>
        <source>The package&apos;s identifier: at most 50 of a-z, 0-9, &apos;_&apos; and &apos;-&apos;, not digits alone.</source>
        <translation>L&apos;identifiant du paquet : 50 caractères au plus parmi a-z, 0-9, &apos;_&apos; et &apos;-&apos;, pas seulement des chiffres.</translation>
    </message>
    <message>
        <source>The package&apos;s name, in the first language.</source>
        <translation>Le nom du paquet, dans la première langue.</translation>
    </message>
    <message>
        <source>A language that the package runs in, for example fr_FR; may be given several times. %1 when none is given.</source>
        <translation>Une langue dans laquelle le paquet fonctionne, par exemple fr_FR ; peut être donnée plusieurs fois. %1 si aucune n&apos;est donnée.</translation>
    </message>
    <message>
        <source>The file cannot be made: %1.</source>
        <translation>Le fichier ne peut pas être créé : %1.</translation>
    </message>
    <message>
        <source>The file cannot be written: %1.</source>
        <translation>Le fichier ne peut pas être écrit : %1.</translation>
    </message>
    <message>
        <source>%1 &apos;zel-package explain uid-invalid&apos; says what a UID is.</source>
        <translation>%1 &apos;zel-package explain uid-invalid&apos; dit ce qu&apos;est un UID.</translation>
    </message>
    <message>
        <source>A manifest of version %1; what it still needs: %2.</source>
        <translation>Un manifeste de version %1 ; ce qu&apos;il lui manque encore : %2.</translation>
    </message>
    <message>
        <source>A package needs a --uid.</source>
        <translation>Un paquet a besoin d&apos;un --uid.</translation>
    </message>
    <message>
        <source>Make a new manifest</source>
        <translation>Créer un nouveau manifeste</translation>
    </message>
    <message>
        <source>FILE --uid UID [--name TEXT] [--language CODE]...</source>
        <translation>FICHIER --uid UID [--name TEXTE] [--language CODE]...</translation>
    </message>
    <message>
        <source>Makes FILE, the manifest of a new package of version 1.0.0. A file that exists is never overwritten. &apos;-&apos; writes to standard output.</source>
        <translation>Crée FICHIER, le manifeste d&apos;un nouveau paquet de version 1.0.0. Un fichier existant n&apos;est jamais écrasé. &apos;-&apos; écrit sur la sortie standard.</translation>
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
        <source>Show this help; after a command, that command&apos;s.</source>
        <translation>Montrer cette aide ; après une commande, celle de cette commande.</translation>
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
        <source>There is no option &apos;%1&apos;%2</source>
        <translation>Il n&apos;y a pas d&apos;option &apos;%1&apos;%2</translation>
    </message>
    <message>
        <source>; &apos;%1 --help&apos; lists the options.</source>
        <translation> ; &apos;%1 --help&apos; énumère les options.</translation>
    </message>
    <message>
        <source>An argument is missing: %1</source>
        <translation>Il manque un argument : %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is one argument too many: %2</source>
        <translation>&apos;%1&apos; est un argument de trop : %2</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;%2</source>
        <translation>Il n&apos;y a pas de commande &apos;%1&apos;%2</translation>
    </message>
    <message>
        <source>; &apos;zel-package --help&apos; lists the commands.</source>
        <translation> ; &apos;zel-package --help&apos; énumère les commandes.</translation>
    </message>
    <message>
        <source>A command is missing; &apos;zel-package --help&apos; lists the commands.</source>
        <translation>Il manque une commande ; &apos;zel-package --help&apos; énumère les commandes.</translation>
    </message>
    <message>
        <source>The manifest is malformed.</source>
        <translation>Le manifeste est mal formé.</translation>
    </message>
    <message>
        <source>The file is no well-formed XML in UTF-8, or it holds what a manifest cannot hold at that place. Nothing else in it is checked. Whatever is ignored, the exit status is 2.</source>
        <translation>Le fichier n&apos;est pas du XML bien formé en UTF-8, ou contient ce qu&apos;un manifeste ne peut contenir à cet endroit. Rien d&apos;autre n&apos;y est vérifié. Quoi qu&apos;on ignore, le code de sortie est 2.</translation>
    </message>
    <message>
        <source>Mend the file at the line and column that are given, then check it again.</source>
        <translation>Corrigez le fichier à la ligne et à la colonne indiquées, puis vérifiez-le de nouveau.</translation>
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
        <source>There is no rule &apos;%1&apos;%2</source>
        <translation>Il n&apos;y a pas de règle &apos;%1&apos;%2</translation>
    </message>
    <message>
        <source>Show every text in this language; &apos;!&apos; marks those that are missing.</source>
        <translation>Montrer tous les textes dans cette langue ; &apos;!&apos; marque ceux qui manquent.</translation>
    </message>
    <message>
        <source>The form of the output: text or json.</source>
        <translation>La forme de la sortie : text ou json.</translation>
    </message>
    <message>
        <source>There is no format &apos;%1&apos;%2</source>
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
        <source>Show what a manifest says</source>
        <translation>Montrer ce que dit un manifeste</translation>
    </message>
    <message>
        <source>FILE [--language CODE] [--format text|json]</source>
        <translation>FICHIER [--language CODE] [--format text|json]</translation>
    </message>
    <message>
        <source>Shows all that the manifest in FILE says, and how far it is translated. A missing text is replaced as an application does it: by the one in the default language, then, for a name, by the uid or the path. &apos;-&apos; reads standard input.</source>
        <translation>Montre tout ce que dit le manifeste de FICHIER, et où en est sa traduction. Un texte manquant est remplacé comme le fait une application : par celui de la langue par défaut puis, pour un nom, par l&apos;uid ou le chemin. &apos;-&apos; lit l&apos;entrée standard.</translation>
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
        <source>users may ask for it</source>
        <translation>l&apos;utilisateur peut le demander</translation>
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
        <source>The form of the output: text, json or sarif.</source>
        <translation>La forme de la sortie : text, json ou sarif.</translation>
    </message>
    <message>
        <source>The least severity that makes the exit status 1: error or warning; error when none is given.</source>
        <translation>La gravité à partir de laquelle le code de sortie est 1 : error ou warning ; error si elle n&apos;est pas donnée.</translation>
    </message>
    <message>
        <source>Leave out what these rules find; IDs are joined by commas, and the option may be given several times.</source>
        <translation>Laisser de côté ce que trouvent ces règles ; les ID sont séparés par des virgules, et l&apos;option peut être donnée plusieurs fois.</translation>
    </message>
    <message>
        <source>Explain, at the end, each rule that found something.</source>
        <translation>Expliquer, à la fin, chaque règle qui a trouvé quelque chose.</translation>
    </message>
    <message>
        <source>There is no severity &apos;%1&apos;%2</source>
        <translation>Il n&apos;y a pas de gravité &apos;%1&apos;%2</translation>
    </message>
    <message>
        <source>; it is either error or warning.</source>
        <translation> ; c&apos;est error ou warning.</translation>
    </message>
    <message>
        <source>; it is text, json or sarif.</source>
        <translation> ; c&apos;est text, json ou sarif.</translation>
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
        <source>Tell what is wrong with manifests</source>
        <translation>Dire ce qui ne va pas dans des manifestes</translation>
    </message>
    <message>
        <source>FILE... [--format text|json|sarif] [--fail-on error|warning] [--ignore ID[,ID]...]... [--explain]</source>
        <translation>FICHIER... [--format text|json|sarif] [--fail-on error|warning] [--ignore ID[,ID]...]... [--explain]</translation>
    </message>
    <message>
        <source>Prints what is wrong with each manifest, as FILE:LINE: error: text (field) [id]; the line is that of the field or, where it is missing, of what should hold it. &apos;zel-package explain ID&apos; tells more. &apos;-&apos; reads standard input.</source>
        <translation>Affiche ce qui ne va pas dans chaque manifeste, sous la forme FICHIER:LIGNE: error: texte (champ) [id] ; la ligne est celle du champ ou, s&apos;il manque, de ce qui devrait le contenir. &apos;zel-package explain ID&apos; en dit plus. &apos;-&apos; lit l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>It cannot be empty.</source>
        <translation>Cela ne peut pas être vide.</translation>
    </message>
    <message>
        <source>A package has a version.</source>
        <translation>Un paquet a une version.</translation>
    </message>
    <message>
        <source>Makes, shows, checks, edits and rewrites the manifests of robot application packages.</source>
        <translation>Crée, montre, vérifie, modifie et réécrit les manifestes de paquets d&apos;applications pour robots.</translation>
    </message>
    <message>
        <source>Write nothing; print what would change, as a unified diff.</source>
        <translation>Ne rien écrire ; afficher ce qui changerait, sous forme de diff unifié.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form FIELD=VALUE, as in author=Ines or names[en_US]=Tea.</source>
        <translation>&apos;%1&apos; n&apos;est pas de la forme CHAMP=VALEUR, comme author=Ines ou names[en_US]=Tea.</translation>
    </message>
    <message>
        <source>Write to this file; to standard output when none is given, or &apos;-&apos;.</source>
        <translation>Écrire dans ce fichier ; sur la sortie standard s&apos;il n&apos;est pas donné, ou pour &apos;-&apos;.</translation>
    </message>
    <message>
        <source>%1 stays as it is: %2</source>
        <translation>%1 reste tel quel : %2</translation>
    </message>
    <message>
        <source>This has been published before; the scripts that it keeps beside its texts are dropped.</source>
        <translation>Ceci a déjà été publié ; les scripts gardés à côté de ses textes sont supprimés.</translation>
    </message>
    <message>
        <source>Make the manifest of a package that is to be published</source>
        <translation>Créer le manifeste d&apos;un paquet à publier</translation>
    </message>
    <message>
        <source>FILE [-o OUT]</source>
        <translation>FICHIER [-o SORTIE]</translation>
    </message>
    <message>
        <source>Writes the manifest in FILE as it is published: without texts in languages that the package no longer offers, and with plain text in place of speech scripts, which are kept in a private-use variant of their language. A text that is a malformed script stays as it is, and is told of. &apos;-&apos; reads standard input.</source>
        <translation>Écrit le manifeste de FICHIER tel qu&apos;il est publié : sans les textes dans les langues que le paquet n&apos;offre plus, et avec du texte simple à la place des scripts de parole, qui sont gardés dans une variante à usage privé de leur langue. Un texte qui est un script mal formé reste tel quel, et est signalé. &apos;-&apos; lit l&apos;entrée standard.</translation>
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
        <source>Lists the robots that a package may require, families and models, and what the model of a robot requirement is for each; it is empty for any robot. A manifest may require others too.</source>
        <translation>Énumère les robots qu&apos;un paquet peut exiger, familles et modèles, et pour chacun le modèle d&apos;une exigence ; il est vide pour tout robot. Un manifeste peut en exiger d&apos;autres.</translation>
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
        <source>There is none, so nothing is removed.</source>
        <translation>Il n&apos;y en a pas, donc rien n&apos;est supprimé.</translation>
    </message>
    <message>
        <source>This is an entry: an empty VALUE removes it; a field of it is set as in &apos;%1.FIELD=VALUE&apos;.</source>
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
        <source>The FILE to edit is missing.</source>
        <translation>Le FILE à modifier manque.</translation>
    </message>
    <message>
        <source>&apos;-&apos; can be given once only.</source>
        <translation>&apos;-&apos; ne peut être donné qu&apos;une fois.</translation>
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
        <source>Sets fields, named as in &apos;show --format json&apos;: author=Ines, names[fr_FR]=Goûter, robotRequirements[0].maxBodyVersion=3.1, behaviors[greet].tags[en_US][0]=hello. An empty VALUE clears a text and removes an entry or an item: behaviors[greet]=. The key [+] adds one to a list: supportedLanguages[+]=fr_FR, behaviors[+].path=greet; &apos;@INDEX&apos; adds it at an index, from 0 on: supportedLanguages[+]@0=fr_FR. &apos;ENTRY@INDEX&apos; moves an entry: behaviors[greet]@0. Adding what is there and removing what is not changes nothing, so that a command can be repeated. Either all fields of all files are set or, where one is wrong, none. Files are rewritten in the canonical form with nothing lost. &apos;-&apos; takes standard input and writes to standard output; a file whose name has a &apos;=&apos; is given with its folder, as in ./a=b.xml.</source>
        <translation>Modifie des champs, nommés comme dans &apos;show --format json&apos; : author=Ines, names[fr_FR]=Goûter, robotRequirements[0].maxBodyVersion=3.1, behaviors[greet].tags[en_US][0]=hello. Une VALUE vide efface un texte et supprime une entrée ou un élément : behaviors[greet]=. La clé [+] en ajoute à une liste : supportedLanguages[+]=fr_FR, behaviors[+].path=greet ; &apos;@INDEX&apos; l&apos;ajoute à un index, à partir de 0 : supportedLanguages[+]@0=fr_FR. &apos;ENTRY@INDEX&apos; déplace une entrée : behaviors[greet]@0. Ajouter ce qui existe et supprimer ce qui n&apos;existe pas ne change rien, si bien qu&apos;une commande peut être répétée. Tous les champs de tous les fichiers sont modifiés ou, si l&apos;un d&apos;eux est faux, aucun. Les fichiers sont réécrits sous la forme canonique sans rien perdre. &apos;-&apos; lit l&apos;entrée standard et écrit sur la sortie standard ; un fichier dont le nom contient &apos;=&apos; est donné avec son dossier, comme ./a=b.xml.</translation>
    </message>
    <message>
        <source>There is none.</source>
        <translation>Il n&apos;y en a pas.</translation>
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
        <source>First make the edits in this JSON file, which schema/edits.schema.json describes; &apos;-&apos; is standard input.</source>
        <translation>Faire d&apos;abord les modifications de ce fichier JSON, décrit par schema/edits.schema.json ; &apos;-&apos; est l&apos;entrée standard.</translation>
    </message>
</context>
</TS>
