<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Editor::BehaviorDetails</name>
    <message>
        <source>A behavior needs a path.</source>
        <translation>Il faut un chemin à un comportement.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Interactive: it reacts to people</source>
        <translation>Interactif&#xa0;: il réagit aux personnes</translation>
    </message>
    <message>
        <source>Solitary: the robot runs it on its own</source>
        <translation>Solitaire&#xa0;: le robot le lance de lui-même</translation>
    </message>
    <message>
        <source>Language of the texts</source>
        <translation>Langue des textes</translation>
    </message>
    <message>
        <source>Texts &amp;in:</source>
        <translation>Te&amp;xtes en&#xa0;:</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Textes</translation>
    </message>
    <message>
        <source>Trigger sentences</source>
        <translation>Déclenchement</translation>
    </message>
    <message>
        <source>A sentence that starts the behavior</source>
        <translation>Une phrase qui lance le comportement</translation>
    </message>
    <message>
        <source>Responses</source>
        <translation>Réponses</translation>
    </message>
    <message>
        <source>What the robot says while it loads</source>
        <translation>Ce que dit le robot pendant le chargement</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>A new tag</source>
        <translation>Une nouvelle étiquette</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Conditions</translation>
    </message>
    <message>
        <source>A new condition for this purpose</source>
        <translation>Une nouvelle condition pour cet usage</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Permissions</translation>
    </message>
    <message>
        <source>A new permission</source>
        <translation>Une nouvelle permission</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>What people say to start the behavior. Type a sentence below.</source>
        <translation>Ce que l&apos;on dit pour lancer le comportement. Saisissez une phrase ci-dessous.</translation>
    </message>
    <message>
        <source>What the robot says until the behavior starts. Type a sentence below.</source>
        <translation>Ce que le robot dit jusqu&apos;au début du comportement. Saisissez une phrase ci-dessous.</translation>
    </message>
    <message>
        <source>Words that group behaviors. Type a tag below.</source>
        <translation>Des mots qui regroupent les comportements. Saisissez une étiquette ci-dessous.</translation>
    </message>
    <message>
        <source>What has to hold for the behavior to run. Type a condition below.</source>
        <translation>Ce qui doit être vrai pour que le comportement s&apos;exécute. Saisissez une condition ci-dessous.</translation>
    </message>
    <message>
        <source>What the behavior uses of the robot. Type a permission below.</source>
        <translation>Ce que le comportement utilise du robot. Saisissez une permission ci-dessous.</translation>
    </message>
    <message>
        <source>A user may as&amp;k for it</source>
        <translation>L&apos;utilisateur peut le de&amp;mander</translation>
    </message>
    <message>
        <source>Pa&amp;th:</source>
        <translation>&amp;Chemin&#xa0;:</translation>
    </message>
    <message>
        <source>Nat&amp;ure:</source>
        <translation>Na&amp;ture&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Description&#xa0;:</translation>
    </message>
    <message>
        <source>Purp&amp;ose:</source>
        <translation>&amp;Usage&#xa0;:</translation>
    </message>
</context>
<context>
    <name>Editor::BehaviorsModel</name>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
</context>
<context>
    <name>Editor::BehaviorsPage</name>
    <message>
        <source>&amp;Behaviors</source>
        <translation>&amp;Comportements</translation>
    </message>
    <message>
        <source>Find a behavior</source>
        <translation>Trouver un comportement</translation>
    </message>
    <message>
        <source>Behaviors</source>
        <translation>Comportements</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>A behavior is something that the robot does. “Add” adds one; the search above may hide some.</source>
        <translation>Un comportement est une action du robot. «&#xa0;Ajouter&#xa0;» en ajoute un&#xa0;; la recherche ci-dessus peut en masquer.</translation>
    </message>
</context>
<context>
    <name>Editor::ChangeList</name>
    <message>
        <source>%1 removed</source>
        <translation>%1&#xa0;: suppression</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1&#xa0;: ajout</translation>
    </message>
</context>
<context>
    <name>Editor::DialogsModel</name>
    <message>
        <source>Topic</source>
        <translation>Sujet</translation>
    </message>
</context>
<context>
    <name>Editor::DialogsPage</name>
    <message>
        <source>&amp;Dialogs</source>
        <translation>&amp;Dialogues</translation>
    </message>
    <message>
        <source>Dialogs</source>
        <translation>Dialogues</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>&amp;Topic:</source>
        <translation>&amp;Sujet&#xa0;:</translation>
    </message>
    <message>
        <source>A dialog needs a topic name.</source>
        <translation>Il faut un nom de sujet à un dialogue.</translation>
    </message>
    <message>
        <source>Topic files</source>
        <translation>Fichiers du sujet</translation>
    </message>
    <message>
        <source>A dialog is a topic that the robot can talk about, with a file for each language. “Add” adds one.</source>
        <translation>Un dialogue est un sujet dont le robot peut parler, avec un fichier par langue. «&#xa0;Ajouter&#xa0;» en ajoute un.</translation>
    </message>
    <message>
        <source>Type vers&amp;ion:</source>
        <translation>&amp;Version de type&#xa0;:</translation>
    </message>
    <message>
        <source>Remove Fi&amp;le</source>
        <translation>Retirer &amp;le fichier</translation>
    </message>
    <message>
        <source>&amp;Choose File…</source>
        <translation>&amp;Choisir un fichier…</translation>
    </message>
    <message>
        <source>Choose a Topic File</source>
        <translation>Choisir un fichier de sujet</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>Editor::Document</name>
    <message>
        <source>The icon cannot be converted to PNG.</source>
        <translation>L&apos;icône ne peut pas être convertie en PNG.</translation>
    </message>
    <message>
        <source>Merge with the file</source>
        <translation>Fusionner avec le fichier</translation>
    </message>
</context>
<context>
    <name>Editor::Exchange</name>
    <message>
        <source>XLIFF files (*.xlf *.xliff);;All files (*)</source>
        <translation>Fichiers XLIFF (*.xlf *.xliff);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Export Texts</source>
        <translation>Exporter les textes</translation>
    </message>
    <message>
        <source>Import Texts</source>
        <translation>Importer des textes</translation>
    </message>
    <message>
        <source>Texts whose source has changed since the export: %1</source>
        <translation>Textes dont la source a changé depuis l&apos;export : %1</translation>
    </message>
    <message>
        <source>Import their translations too?</source>
        <translation>Importer aussi leurs traductions ?</translation>
    </message>
    <message>
        <source>Line %1, %2: %3</source>
        <translation>Ligne %1, %2 : %3</translation>
    </message>
    <message>
        <source>Texts imported: %1. Unchanged: %2. Not translated: %3. Skipped: %4.</source>
        <translation>Textes importés : %1. Inchangés : %2. Non traduits : %3. Ignorés : %4.</translation>
    </message>
    <message>
        <source>Nothing was imported: some texts are malformed speech scripts.</source>
        <translation>Rien n&apos;a été importé : certains textes sont des scripts de parole mal formés.</translation>
    </message>
    <message>
        <source>Line %1, column %2: %3</source>
        <translation>Ligne %1, colonne %2 : %3</translation>
    </message>
    <message>
        <source>Fill missing texts</source>
        <translation>Compléter les textes manquants</translation>
    </message>
    <message>
        <source>Filled from the source: %1.</source>
        <translation>Textes repris de la source : %1.</translation>
    </message>
</context>
<context>
    <name>Editor::FileActions</name>
    <message>
        <source>Empty Package</source>
        <translation>Paquet vide</translation>
    </message>
    <message>
        <source>Behavior Started by a Sentence</source>
        <translation>Comportement lancé par une phrase</translation>
    </message>
    <message>
        <source>Service in the Background</source>
        <translation>Service en arrière-plan</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Fichiers &amp;récents</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>&amp;Publish…</source>
        <translation>&amp;Publier…</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Re&amp;charger</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>New package from a template</source>
        <translation>Nouveau paquet à partir d&apos;un modèle</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>The package has changes that are not saved.</source>
        <translation>Le paquet a des modifications qui ne sont pas enregistrées.</translation>
    </message>
    <message>
        <source>They are lost unless you save them.</source>
        <translation>Elles seront perdues si vous ne les enregistrez pas.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open a Manifest</source>
        <translation>Ouvrir un manifeste</translation>
    </message>
    <message>
        <source>Manifests (*.xml);;All files (*)</source>
        <translation>Manifestes (*.xml);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Save the Manifest</source>
        <translation>Enregistrer le manifeste</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Another program has changed the file since it was opened.</source>
        <translation>Un autre programme a modifié le fichier depuis son ouverture.</translation>
    </message>
    <message>
        <source>Saving replaces what the other program has written.</source>
        <translation>L&apos;enregistrement remplacera ce que l&apos;autre programme a écrit.</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recharger</translation>
    </message>
    <message>
        <source>Another program has changed the file.</source>
        <translation>Un autre programme a modifié le fichier.</translation>
    </message>
    <message>
        <source>Keep This Version</source>
        <translation>Garder ce qui est ici</translation>
    </message>
    <message>
        <source>The file no longer exists.</source>
        <translation>Le fichier n&apos;est plus là.</translation>
    </message>
    <message>
        <source>Save It Again</source>
        <translation>L&apos;enregistrer à nouveau</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Aucun fichier pour l&apos;instant</translation>
    </message>
</context>
<context>
    <name>Editor::FindPanel</name>
    <message>
        <source>Match case</source>
        <translation>Respecter la casse</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Mots entiers</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Expression régulière</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Tout remplacer</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Texte à rechercher</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Remplacer par</translation>
    </message>
    <message>
        <source>In the replacement, \1 is the first captured text.</source>
        <translation>Dans le remplacement, \1 est le premier texte capturé.</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>Occurrences</translation>
    </message>
    <message>
        <source>Searching: %1 so far</source>
        <translation>Recherche en cours : %1</translation>
    </message>
    <message>
        <source>Not found.</source>
        <translation>Introuvable.</translation>
    </message>
    <message>
        <source>Matches: %1</source>
        <translation>Occurrences : %1</translation>
    </message>
    <message>
        <source>Replaced: %1.</source>
        <translation>Remplacés : %1.</translation>
    </message>
    <message>
        <source>Replaced: %1, not possible: %2.</source>
        <translation>Remplacés : %1, impossibles : %2.</translation>
    </message>
    <message>
        <source>Replace “%1” with “%2”</source>
        <translation>Remplacer « %1 » par « %2 »</translation>
    </message>
    <message>
        <source>Matches in the texts and fields of the package appear here.</source>
        <translation>Les occurrences trouvées dans les textes et les champs du paquet apparaissent ici.</translation>
    </message>
</context>
<context>
    <name>Editor::IconButton</name>
    <message>
        <source>Icon</source>
        <translation>Icône</translation>
    </message>
    <message>
        <source>Click to choose an icon, or drop a picture here.</source>
        <translation>Cliquez pour choisir une icône, ou déposez une image ici.</translation>
    </message>
    <message>
        <source>Use the Default Icon</source>
        <translation>Utiliser l&apos;icône par défaut</translation>
    </message>
    <message>
        <source>Choose an Icon</source>
        <translation>Choisir une icône</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.bmp *.svg)</source>
        <translation>Images (*.png *.jpg *.bmp *.svg)</translation>
    </message>
    <message>
        <source>The picture %1 cannot be read: %2</source>
        <translation>L&apos;image %1 ne peut pas être lue&#xa0;: %2</translation>
    </message>
    <message>
        <source>Robots show the default icon.</source>
        <translation>Les robots affichent l&apos;icône par défaut.</translation>
    </message>
    <message>
        <source>The file icon.png is beside the manifest.</source>
        <translation>Le fichier icon.png est à côté du manifeste.</translation>
    </message>
    <message>
        <source>Saving writes the file icon.png beside the manifest.</source>
        <translation>L&apos;enregistrement écrit le fichier icon.png à côté du manifeste.</translation>
    </message>
</context>
<context>
    <name>Editor::IdentityPage</name>
    <message>
        <source>&amp;Identity</source>
        <translation>&amp;Identité</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paquet</translation>
    </message>
    <message>
        <source>&amp;UID:</source>
        <translation>&amp;UID&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Type version:</source>
        <translation>Version de &amp;type&#xa0;:</translation>
    </message>
    <message>
        <source>I&amp;nstaller:</source>
        <translation>I&amp;nstallateur&#xa0;:</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Éditeur</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>&amp;Auteur&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Organization:</source>
        <translation>&amp;Organisation&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Date&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Channel:</source>
        <translation>Cana&amp;l&#xa0;:</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icône</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1 :</translation>
    </message>
    <message>
        <source>Ve&amp;rsion:</source>
        <translation>Ve&amp;rsion&#xa0;:</translation>
    </message>
    <message>
        <source>Path on the ro&amp;bot:</source>
        <translation>&amp;Chemin sur le robot&#xa0;:</translation>
    </message>
    <message>
        <source>Choose &amp;Icon…</source>
        <translation>Choi&amp;sir l&apos;icône…</translation>
    </message>
</context>
<context>
    <name>Editor::LanguageChooser</name>
    <message>
        <source>Add Language</source>
        <translation>Ajouter une langue</translation>
    </message>
    <message>
        <source>Find a language, or type a code such as pt_BR</source>
        <translation>Chercher une langue, ou saisir un code comme pt_BR</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Its own name</source>
        <translation>Nom dans la langue</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Langues</translation>
    </message>
    <message>
        <source>Another language</source>
        <translation>Autre langue</translation>
    </message>
    <message>
        <source>No known language matches. “%1” is added as a code.</source>
        <translation>Aucune langue connue ne correspond. «&#xa0;%1&#xa0;» est ajouté comme code.</translation>
    </message>
    <message>
        <source>The package supports “%1” already.</source>
        <translation>Le paquet prend déjà en charge «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>No known language matches, and “%1” is not a code. A code starts with letters; letters and digits follow an underscore, as in pt_BR.</source>
        <translation>Aucune langue connue ne correspond, et «&#xa0;%1&#xa0;» n&apos;est pas un code. Un code commence par des lettres&#xa0;; des lettres et des chiffres suivent un tiret bas, comme dans pt_BR.</translation>
    </message>
</context>
<context>
    <name>Editor::LanguagePairChooser</name>
    <message>
        <source>&amp;Source:</source>
        <translation>&amp;Source :</translation>
    </message>
    <message>
        <source>&amp;Target:</source>
        <translation>&amp;Cible :</translation>
    </message>
    <message>
        <source>Source language</source>
        <translation>Langue source</translation>
    </message>
    <message>
        <source>Target language</source>
        <translation>Langue cible</translation>
    </message>
</context>
<context>
    <name>Editor::LanguagesModel</name>
    <message>
        <source>Supported languages: %1. With a name: %2. With a description: %3.</source>
        <translation>Langues prises en charge&#xa0;: %1. Avec un nom&#xa0;: %2. Avec une description&#xa0;: %3.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Supported</source>
        <translation>Prise en charge</translation>
    </message>
    <message>
        <source>Described</source>
        <translation>Décrite</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Couverture</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Remove language %1</source>
        <translation>Retirer la langue %1</translation>
    </message>
</context>
<context>
    <name>Editor::MainWindow</name>
    <message>
        <source>Problems</source>
        <translation>Problèmes</translation>
    </message>
    <message>
        <source>As opened</source>
        <translation>À l&apos;ouverture</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Affic&amp;hage</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>The properties editor shows and edits the manifest of an application package for a robot.

Version %1</source>
        <translation>L&apos;éditeur de propriétés montre et modifie le manifeste d&apos;un paquet d&apos;application pour un robot.

Version %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>New package</source>
        <translation>Nouveau paquet</translation>
    </message>
    <message>
        <source>%1[*] – Package Properties</source>
        <translation>%1[*] – Propriétés du paquet</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>The package keeps what was there before.</source>
        <translation>Le paquet garde ce qui s&apos;y trouvait avant.</translation>
    </message>
    <message>
        <source>Continue Without It</source>
        <translation>Continuer sans</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modification</translation>
    </message>
    <message>
        <source>&amp;Problems</source>
        <translation>&amp;Problèmes</translation>
    </message>
    <message>
        <source>&amp;Next Problem</source>
        <translation>Problème &amp;suivant</translation>
    </message>
    <message>
        <source>&amp;Previous Problem</source>
        <translation>Problème &amp;précédent</translation>
    </message>
    <message>
        <source>&amp;Fix All Safe Problems</source>
        <translation>&amp;Corriger tout ce qui est sûr</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Corriger</translation>
    </message>
    <message>
        <source>Dark &amp;Colors</source>
        <translation>&amp;Couleurs sombres</translation>
    </message>
    <message>
        <source>Package Properties</source>
        <translation>Propriétés du paquet</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Rechercher et remplacer</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>Rec&amp;hercher…</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Rechercher le sui&amp;vant</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>Rechercher le &amp;précédent</translation>
    </message>
</context>
<context>
    <name>Editor::MarkLabel</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
</context>
<context>
    <name>Editor::MatchesModel</name>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
</context>
<context>
    <name>Editor::PageStack</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>Editor::ProblemCount</name>
    <message>
        <source>No problems</source>
        <translation>Aucun problème</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>Erreurs&#xa0;: %1, avertissements&#xa0;: %2</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2, notes: %3</source>
        <translation>Erreurs&#xa0;: %1, avertissements&#xa0;: %2, remarques&#xa0;: %3</translation>
    </message>
</context>
<context>
    <name>Editor::ProblemDetails</name>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Writes a comment that turns off the rule here</source>
        <translation>Écrit un commentaire qui désactive la règle ici</translation>
    </message>
    <message>
        <source>The explanation of the selected problem and ways to correct it appear here.</source>
        <translation>L&apos;explication du problème sélectionné et les façons de le corriger apparaissent ici.</translation>
    </message>
</context>
<context>
    <name>Editor::ProblemsModel</name>
    <message>
        <source>Severity</source>
        <translation>Gravité</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
</context>
<context>
    <name>Editor::ProblemsPanel</name>
    <message>
        <source>Problems</source>
        <translation>Problèmes</translation>
    </message>
    <message>
        <source>Fix all safe problems</source>
        <translation>Corriger tout ce qui est sûr</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Show the field</source>
        <translation>&amp;Montrer le champ</translation>
    </message>
    <message>
        <source>Filter problems</source>
        <translation>Filtrer les problèmes</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Erreurs</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avertissements</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>Ignore “%1”</source>
        <translation>Ignorer « %1 »</translation>
    </message>
    <message>
        <source>Ignore %1 problems</source>
        <translation>Ignorer %1 problèmes</translation>
    </message>
    <message>
        <source>The package has no problems.</source>
        <translation>Le paquet n&apos;a aucun problème.</translation>
    </message>
    <message>
        <source>The filter above hides all problems.</source>
        <translation>Le filtre ci-dessus masque tous les problèmes.</translation>
    </message>
</context>
<context>
    <name>Editor::PropertiesModel</name>
    <message>
        <source>A property needs a name.</source>
        <translation>Une propriété doit avoir un nom.</translation>
    </message>
    <message>
        <source>The service has “%1” already.</source>
        <translation>Le service a déjà « %1 ».</translation>
    </message>
    <message>
        <source>Rename property “%1”</source>
        <translation>Renommer la propriété « %1 »</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>Editor::Publishing</name>
    <message>
        <source>… and %1 more</source>
        <translation>… et %1 de plus</translation>
    </message>
    <message>
        <source>Publish</source>
        <translation>Publier</translation>
    </message>
    <message>
        <source>A package with malformed speech scripts cannot be published.</source>
        <translation>Un paquet dont des scripts de parole sont mal formés ne peut pas être publié.</translation>
    </message>
    <message>
        <source>The package still has errors.</source>
        <translation>Le paquet a encore des erreurs.</translation>
    </message>
    <message>
        <source>Publish Anyway</source>
        <translation>Publier quand même</translation>
    </message>
    <message>
        <source>Publish the Manifest</source>
        <translation>Publier le manifeste</translation>
    </message>
    <message>
        <source>Manifests (*.xml);;All files (*)</source>
        <translation>Manifestes (*.xml);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>This is the manifest that is open.</source>
        <translation>C&apos;est le manifeste qui est ouvert.</translation>
    </message>
    <message>
        <source>Publishing would replace it by a copy with fewer texts. Choose another file.</source>
        <translation>La publication le remplacerait par une copie avec moins de textes. Choisissez un autre fichier.</translation>
    </message>
</context>
<context>
    <name>Editor::Recovery</name>
    <message>
        <source>Recovered edits</source>
        <translation>Modifications récupérées</translation>
    </message>
</context>
<context>
    <name>Editor::RecoveryDialogs</name>
    <message>
        <source>a package that was never saved</source>
        <translation>un paquet jamais enregistré</translation>
    </message>
    <message>
        <source>… and %1 others</source>
        <translation>… et %1 autres</translation>
    </message>
    <message>
        <source>Unsaved edits are not kept: %1</source>
        <translation>Les modifications non enregistrées ne sont pas conservées : %1</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Another window (process %1 on %2) has this file open. Whoever saves last may overwrite the edits of the other.</source>
        <translation>Une autre fenêtre (processus %1 sur %2) a ouvert ce fichier. Celle qui enregistre en dernier peut écraser les modifications de l’autre.</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Récupération</translation>
    </message>
    <message>
        <source>The editor ended before the edits of %1 were saved.</source>
        <translation>L’éditeur s’est arrêté avant l’enregistrement des modifications du %1.</translation>
    </message>
    <message>
        <source>The file has changed since. The edits are made in the file as it is now.</source>
        <translation>Le fichier a changé depuis. Les modifications s’appliquent au fichier tel qu’il est maintenant.</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>The edits cannot be made in the file as it is now. They are kept.</source>
        <translation>Les modifications ne peuvent pas s’appliquer au fichier tel qu’il est maintenant. Elles sont conservées.</translation>
    </message>
    <message>
        <source>Edits: %1, in %2</source>
        <translation>Modifications : %1, dans %2</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>The icon</source>
        <translation>L&apos;icône</translation>
    </message>
</context>
<context>
    <name>Editor::Reloading</name>
    <message>
        <source>Reload</source>
        <translation>Recharger</translation>
    </message>
    <message>
        <source>Your unsaved changes:</source>
        <translation>Vos modifications non enregistrées :</translation>
    </message>
    <message>
        <source>Changes in the file:</source>
        <translation>Modifications dans le fichier :</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>Garder les deux</translation>
    </message>
    <message>
        <source>Discard Yours</source>
        <translation>Abandonner les vôtres</translation>
    </message>
    <message>
        <source>These fields were changed on both sides. They keep your values, and are listed as problems until you decide.</source>
        <translation>Ces champs ont été modifiés des deux côtés. Ils gardent vos valeurs et figurent parmi les problèmes jusqu’à votre décision.</translation>
    </message>
</context>
<context>
    <name>Editor::RequirementsModel</name>
    <message>
        <source>Lowest version</source>
        <translation>Version minimale</translation>
    </message>
    <message>
        <source>Highest version</source>
        <translation>Version maximale</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>Robot</translation>
    </message>
    <message>
        <source>Lowest head</source>
        <translation>Tête, minimum</translation>
    </message>
    <message>
        <source>Highest head</source>
        <translation>Tête, maximum</translation>
    </message>
    <message>
        <source>Lowest body</source>
        <translation>Corps, minimum</translation>
    </message>
    <message>
        <source>Highest body</source>
        <translation>Corps, maximum</translation>
    </message>
    <message>
        <source>Choose a robot</source>
        <translation>Choisir</translation>
    </message>
</context>
<context>
    <name>Editor::RequirementsPage</name>
    <message>
        <source>&amp;Requirements</source>
        <translation>E&amp;xigences</translation>
    </message>
    <message>
        <source>Robots</source>
        <translation>Robots</translation>
    </message>
    <message>
        <source>The package is offered to robots that meet one of these. An empty version is a bound that is not set.</source>
        <translation>Le paquet est proposé aux robots qui en satisfont une. Une version vide est une borne non fixée.</translation>
    </message>
    <message>
        <source>Add &amp;Robot</source>
        <translation>Ajouter un &amp;robot</translation>
    </message>
    <message>
        <source>Re&amp;move Robot</source>
        <translation>R&amp;etirer le robot</translation>
    </message>
    <message>
        <source>Brio middleware</source>
        <translation>Intergiciel Brio</translation>
    </message>
    <message>
        <source>The versions that the package was tried on; the lowest is needed.</source>
        <translation>Les versions sur lesquelles le paquet a été essayé&#xa0;; la minimale est nécessaire.</translation>
    </message>
    <message>
        <source>Add &amp;Brio Version</source>
        <translation>Ajouter une version de &amp;Brio</translation>
    </message>
    <message>
        <source>Without a robot, the package is offered to none. “Add Robot” adds one.</source>
        <translation>Sans robot, le paquet n&apos;est proposé à aucun. «&#xa0;Ajouter un robot&#xa0;» en ajoute un.</translation>
    </message>
    <message>
        <source>The versions that the package runs on. “Add Brio Version” adds one.</source>
        <translation>Les versions sur lesquelles le paquet fonctionne. «&#xa0;Ajouter une version de Brio&#xa0;» en ajoute une.</translation>
    </message>
    <message>
        <source>Rem&amp;ove Brio Version</source>
        <translation>Re&amp;tirer la version de Brio</translation>
    </message>
</context>
<context>
    <name>Editor::ReviewPage</name>
    <message>
        <source>Re&amp;view</source>
        <translation>&amp;Vérification</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Modifications</translation>
    </message>
    <message>
        <source>What has changed since the package was saved:</source>
        <translation>Modifications depuis le dernier enregistrement :</translation>
    </message>
    <message>
        <source>XML</source>
        <translation>XML</translation>
    </message>
    <message>
        <source>Publication</source>
        <translation>Publication</translation>
    </message>
    <message>
        <source>What publishing changes in the copy for users:</source>
        <translation>Ce que la publication change dans la copie destinée aux utilisateurs :</translation>
    </message>
    <message>
        <source>Nothing has changed.</source>
        <translation>Aucune modification.</translation>
    </message>
    <message>
        <source>Nothing: all texts are plain, in languages that the package has.</source>
        <translation>Rien : tous les textes sont simples et dans des langues du paquet.</translation>
    </message>
</context>
<context>
    <name>Editor::RowActions</name>
    <message>
        <source>This list takes entries of another kind.</source>
        <translation>Cette liste prend des entrées d’un autre type.</translation>
    </message>
    <message>
        <source>The list has “%1” already.</source>
        <translation>La liste contient déjà «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The clipboard has nothing for this list.</source>
        <translation>Le presse-papiers ne contient rien pour cette liste.</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>Dup&amp;liquer</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Move Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>&amp;Descendre</translation>
    </message>
</context>
<context>
    <name>Editor::ServicesModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Starts with the robot</source>
        <translation>Démarre avec le robot</translation>
    </message>
</context>
<context>
    <name>Editor::ServicesPage</name>
    <message>
        <source>&amp;Services</source>
        <translation>&amp;Services</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Services</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>A service is a program that runs in the background on the robot. “Add” adds one.</source>
        <translation>Un service est un programme qui tourne en arrière-plan sur le robot. «&#xa0;Ajouter&#xa0;» en ajoute un.</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Settings of the service that is selected above. “Add Property” adds one.</source>
        <translation>Réglages du service sélectionné ci-dessus. « Ajouter une propriété » en ajoute un.</translation>
    </message>
    <message>
        <source>Add Pr&amp;operty</source>
        <translation>A&amp;jouter une propriété</translation>
    </message>
    <message>
        <source>Re&amp;move Property</source>
        <translation>Retirer la proprié&amp;té</translation>
    </message>
</context>
<context>
    <name>Editor::StartPage</name>
    <message>
        <source>%1 (the file is gone)</source>
        <translation>%1 (le fichier a disparu)</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paquet</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Recent packages</source>
        <translation>Paquets récents</translation>
    </message>
    <message>
        <source>The packages that you open appear here.</source>
        <translation>Les paquets que vous ouvrez apparaissent ici.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open a Manifest…</source>
        <translation>Ouvrir un manifeste…</translation>
    </message>
    <message>
        <source>New package</source>
        <translation>Nouveau paquet</translation>
    </message>
</context>
<context>
    <name>Editor::StringListEditor</name>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
</context>
<context>
    <name>Editor::StringListModel</name>
    <message>
        <source>The list has “%1” already.</source>
        <translation>La liste contient déjà «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>Editor::TextCells</name>
    <message>
        <source>Missing</source>
        <translation>Manquant</translation>
    </message>
    <message>
        <source>Malformed script</source>
        <translation>Script mal formé</translation>
    </message>
    <message>
        <source>Source changed</source>
        <translation>Source modifiée</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>Identique à la source</translation>
    </message>
    <message>
        <source>Translated</source>
        <translation>Traduit</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>Traduction</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paquet</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>Editor::TextPair</name>
    <message>
        <source>As plain text: %1</source>
        <translation>En texte brut : %1</translation>
    </message>
    <message>
        <source>Malformed speech script: %1</source>
        <translation>Script de parole mal formé : %1</translation>
    </message>
    <message>
        <source>Source text</source>
        <translation>Texte source</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>Traduction</translation>
    </message>
    <message>
        <source>Type the translation; Ctrl+Return goes on</source>
        <translation>Saisissez la traduction ; Ctrl+Entrée passe à la suite</translation>
    </message>
</context>
<context>
    <name>Editor::TextsPage</name>
    <message>
        <source>&amp;Languages</source>
        <translation>&amp;Langues</translation>
    </message>
    <message>
        <source>Languages and texts</source>
        <translation>Langues et textes</translation>
    </message>
    <message>
        <source>&amp;Remove Language</source>
        <translation>&amp;Retirer la langue</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>No language is selected.</source>
        <translation>Aucune langue n&apos;est sélectionnée.</translation>
    </message>
    <message>
        <source>&amp;Add Language…</source>
        <translation>&amp;Ajouter une langue…</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Description&#xa0;:</translation>
    </message>
    <message>
        <source>The languages that the package supports or has texts in. “Add Language” adds one.</source>
        <translation>Les langues que le paquet prend en charge ou dans lesquelles il a des textes. «&#xa0;Ajouter une langue&#xa0;» en ajoute une.</translation>
    </message>
</context>
<context>
    <name>Editor::TopicsModel</name>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Topic file</source>
        <translation>Fichier du sujet</translation>
    </message>
    <message>
        <source>The file is beside the manifest.</source>
        <translation>Le fichier est à côté du manifeste.</translation>
    </message>
</context>
<context>
    <name>Editor::TranslationPage</name>
    <message>
        <source>Translate the item before this one first: a list has no gaps.</source>
        <translation>Traduisez d&apos;abord l&apos;élément précédent : une liste n&apos;a pas de trous.</translation>
    </message>
    <message>
        <source>&amp;Translation</source>
        <translation>&amp;Traduction</translation>
    </message>
    <message>
        <source>Sho&amp;w:</source>
        <translation>Montre&amp;r :</translation>
    </message>
    <message>
        <source>All texts</source>
        <translation>Tous les textes</translation>
    </message>
    <message>
        <source>Find a text</source>
        <translation>Rechercher un texte</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Textes</translation>
    </message>
    <message>
        <source>No text is shown. A package needs two languages for translating; the page Languages adds them.</source>
        <translation>Aucun texte à afficher. Pour traduire, un paquet doit avoir deux langues ; la page Langues permet d&apos;en ajouter.</translation>
    </message>
    <message>
        <source>Previo&amp;us Missing</source>
        <translation>Man&amp;quant précédent</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Haut</translation>
    </message>
    <message>
        <source>&amp;Next Missing</source>
        <translation>Manquant suiva&amp;nt</translation>
    </message>
    <message>
        <source>Alt+Down, or Ctrl+Return while typing</source>
        <translation>Alt+Bas, ou Ctrl+Entrée pendant la saisie</translation>
    </message>
    <message>
        <source>&amp;Copy Source</source>
        <translation>C&amp;opier la source</translation>
    </message>
    <message>
        <source>Copies the source text into the translation</source>
        <translation>Copie le texte source dans la traduction</translation>
    </message>
    <message>
        <source>Fill &amp;All Missing</source>
        <translation>Co&amp;mpléter tout</translation>
    </message>
    <message>
        <source>Copies the source text to where the translation is missing</source>
        <translation>Copie le texte source là où la traduction manque</translation>
    </message>
    <message>
        <source>E&amp;xport XLIFF…</source>
        <translation>E&amp;xporter en XLIFF…</translation>
    </message>
    <message>
        <source>Writes the texts for translation tools</source>
        <translation>Écrit les textes pour les outils de traduction</translation>
    </message>
    <message>
        <source>&amp;Import XLIFF…</source>
        <translation>Importer &amp;du XLIFF…</translation>
    </message>
    <message>
        <source>Reads texts from translation tools</source>
        <translation>Lit les textes des outils de traduction</translation>
    </message>
    <message>
        <source>Translated: %1 of %2.</source>
        <translation>Traduits : %1 sur %2.</translation>
    </message>
    <message>
        <source>Reading the texts…</source>
        <translation>Lecture des textes…</translation>
    </message>
    <message>
        <source>No other text is missing.</source>
        <translation>Aucun autre texte ne manque.</translation>
    </message>
    <message>
        <source>Texts to show</source>
        <translation>Textes à montrer</translation>
    </message>
</context>
<context>
    <name>Editor::XmlView</name>
    <message>
        <source>The manifest as XML</source>
        <translation>Le manifeste en XML</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Shows and edits the manifest of an application package.</source>
        <translation>Montre et modifie le manifeste d&apos;un paquet d&apos;application.</translation>
    </message>
    <message>
        <source>The manifest to open.</source>
        <translation>Le manifeste à ouvrir.</translation>
    </message>
</context>
</TS>
