<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Application UID is not defined correctly.</source>
        <translation>L&apos;UID de l&apos;application n&apos;est pas défini correctement.</translation>
    </message>
    <message>
        <source>Robot requirements are not defined.</source>
        <translation>Les exigences sur le robot ne sont pas définies.</translation>
    </message>
    <message>
        <source>A robot requirement has no model defined.</source>
        <translation>Une exigence sur le robot n&apos;indique pas de modèle.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; robot requirement has a wrong body version max value.</source>
        <translation>L&apos;exigence sur le robot « %1 » a une version maximale de corps incorrecte.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; robot requirement has a wrong head version max value.</source>
        <translation>L&apos;exigence sur le robot « %1 » a une version maximale de tête incorrecte.</translation>
    </message>
    <message>
        <source>Brio version requirement is not defined.</source>
        <translation>L&apos;exigence de version de Brio n&apos;est pas définie.</translation>
    </message>
    <message>
        <source>Brio version requirement is not valid: minimal version is not defined.</source>
        <translation>L&apos;exigence de version de Brio n&apos;est pas valable : la version minimale n&apos;est pas définie.</translation>
    </message>
    <message>
        <source>Brio version requirement is not valid: %1 &amp;lt; %2</source>
        <translation>L&apos;exigence de version de Brio n&apos;est pas valable : %1 &amp;lt; %2</translation>
    </message>
    <message>
        <source>Application name is not defined for: %1</source>
        <translation>Le nom de l&apos;application n&apos;est pas défini pour : %1</translation>
    </message>
    <message>
        <source>Application description is not defined for: %1</source>
        <translation>La description de l&apos;application n&apos;est pas définie pour : %1</translation>
    </message>
    <message>
        <source>Behavior &apos;%1&apos; has no trigger sentence defined for: %2</source>
        <translation>Le comportement « %1 » n&apos;a pas de phrase de déclenchement pour : %2</translation>
    </message>
    <message>
        <source>Any robot</source>
        <translation>N&apos;importe quel robot</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorAddRemoveConditionCommand</name>
    <message>
        <source>Add a condition to the behavior</source>
        <translation>Ajouter une condition au comportement</translation>
    </message>
    <message>
        <source>Remove a condition from the behavior</source>
        <translation>Retirer une condition du comportement</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorAddRemoveLoadingResponseCommand</name>
    <message>
        <source>Add a loading response to the behavior</source>
        <translation>Ajouter une réponse de chargement au comportement</translation>
    </message>
    <message>
        <source>Remove a loading response from the behavior</source>
        <translation>Retirer une réponse de chargement du comportement</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorAddRemovePermissionCommand</name>
    <message>
        <source>Add a permission (%1)</source>
        <translation>Ajouter une permission (%1)</translation>
    </message>
    <message>
        <source>Remove a permission (%1)</source>
        <translation>Retirer une permission (%1)</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorAddRemoveTagCommand</name>
    <message>
        <source>Add a tag to the behavior</source>
        <translation>Ajouter une étiquette au comportement</translation>
    </message>
    <message>
        <source>Remove a tag from the behavior</source>
        <translation>Retirer une étiquette du comportement</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorAddRemoveTriggerSentenceCommand</name>
    <message>
        <source>Add a trigger sentence to the behavior</source>
        <translation>Ajouter une phrase de déclenchement au comportement</translation>
    </message>
    <message>
        <source>Remove a trigger sentence from the behavior</source>
        <translation>Retirer une phrase de déclenchement du comportement</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorDescriptionCommand</name>
    <message>
        <source>Set Behavior description (%1)</source>
        <translation>Modifier la description du comportement (%1)</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorNameCommand</name>
    <message>
        <source>Set Behavior name (%1)</source>
        <translation>Modifier le nom du comportement (%1)</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorNatureCommand</name>
    <message>
        <source>Set behavior nature</source>
        <translation>Modifier la nature du comportement</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorPathCommand</name>
    <message>
        <source>Set behavior path</source>
        <translation>Modifier le chemin du comportement</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorSetConditionCommand</name>
    <message>
        <source>Set behavior condition for %1</source>
        <translation>Modifier la condition du comportement pour %1</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorSetLoadingResponseCommand</name>
    <message>
        <source>Set behavior loading response #%1 in %2</source>
        <translation>Modifier la réponse de chargement n° %1 du comportement en %2</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorSetTagCommand</name>
    <message>
        <source>Set behavior tag #%1 (%2)</source>
        <translation>Modifier l&apos;étiquette n° %1 du comportement (%2)</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorSetTriggerSentenceCommand</name>
    <message>
        <source>Set behavior trigger sentence #%1 (%2)</source>
        <translation>Modifier la phrase de déclenchement n° %1 du comportement (%2)</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorUserRequestableCommand</name>
    <message>
        <source>a behavior</source>
        <translation>un comportement</translation>
    </message>
    <message>
        <source>Set %1 as not user-requestable</source>
        <translation>Ne plus permettre à l&apos;utilisateur de demander %1</translation>
    </message>
    <message>
        <source>Set %1 as user-requestable</source>
        <translation>Permettre à l&apos;utilisateur de demander %1</translation>
    </message>
</context>
<context>
    <name>Zel::DialogInfoModelNameCommand</name>
    <message>
        <source>Set dialog topic name from %1 to %2</source>
        <translation>Renommer le sujet de dialogue de %1 en %2</translation>
    </message>
</context>
<context>
    <name>Zel::DialogInfoModelRemoveTopicCommand</name>
    <message>
        <source>Remove language %1</source>
        <translation>Retirer la langue %1</translation>
    </message>
</context>
<context>
    <name>Zel::DialogInfoModelTypeVersionCommand</name>
    <message>
        <source>Set dialog type version from %1 to %2</source>
        <translation>Modifier la version de type du dialogue de %1 en %2</translation>
    </message>
</context>
<context>
    <name>Zel::PackageGenericValueCommand</name>
    <message>
        <source>Set Application&apos;s icon</source>
        <translation>Modifier l&apos;icône de l&apos;application</translation>
    </message>
    <message>
        <source>Set Application&apos;s version</source>
        <translation>Modifier la version de l&apos;application</translation>
    </message>
</context>
<context>
    <name>Zel::PackageLocalizedStringCommand</name>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>description</source>
        <translation>description</translation>
    </message>
    <message>
        <source>Set application&apos;s %1 (%2)</source>
        <translation>Modifier l&apos;application : %1 (%2)</translation>
    </message>
</context>
<context>
    <name>Zel::PackageModel</name>
    <message>
        <source>The UID identifies the package on the robot and in lists of packages. It has 1 to 50 characters: lower-case letters from a to z, digits, underscores and hyphens, but not only digits.</source>
        <translation>L&apos;UID désigne le paquet sur le robot et dans toutes les listes de paquets. Il a de 1 à 50 caractères : lettres minuscules de a à z, chiffres, traits de soulignement et traits d&apos;union, dont au moins un n&apos;est pas un chiffre.</translation>
    </message>
    <message>
        <source>Write a UID such as my-app_2.</source>
        <translation>Écrivez un UID comme my-app_2.</translation>
    </message>
    <message>
        <source>A package is only offered to robots that meet one of its robot requirements. Without a robot requirement, it is offered to none.</source>
        <translation>Un paquet indique les robots sur lesquels il fonctionne, afin de n&apos;être proposé qu&apos;à ceux-ci. Sans exigence sur le robot, il n&apos;est proposé à aucun.</translation>
    </message>
    <message>
        <source>Add a robot requirement with a robot model or family.</source>
        <translation>Ajoutez une exigence avec un modèle ou une famille de robots.</translation>
    </message>
    <message>
        <source>A robot requirement without a model does not specify a robot, so its version ranges have no effect.</source>
        <translation>Une exigence dont le modèle est vide ne dit pas de quel robot il s&apos;agit, et ses intervalles de versions n&apos;ont pas de sens.</translation>
    </message>
    <message>
        <source>Choose a robot model or family for the requirement, or remove it.</source>
        <translation>Choisissez un modèle ou une famille de robots pour l&apos;exigence, ou retirez-la.</translation>
    </message>
    <message>
        <source>The maximum body version is lower than the minimum, so no robot can meet the requirement.</source>
        <translation>La version de corps la plus haute acceptée est inférieure à la plus basse : aucun robot ne peut satisfaire l&apos;exigence.</translation>
    </message>
    <message>
        <source>Raise or clear the maximum, or lower the minimum. An empty maximum means no upper bound.</source>
        <translation>Augmentez ou videz le maximum, ou diminuez le minimum. Un maximum vide signifie qu&apos;il n&apos;y a pas de borne supérieure.</translation>
    </message>
    <message>
        <source>The maximum head version is lower than the minimum, so no robot can meet the requirement.</source>
        <translation>La version de tête la plus haute acceptée est inférieure à la plus basse : aucun robot ne peut satisfaire l&apos;exigence.</translation>
    </message>
    <message>
        <source>A package declares the versions of the Brio middleware that it runs on, so that it is not installed where it cannot start.</source>
        <translation>Un paquet indique les versions de l&apos;intergiciel Brio sur lesquelles il fonctionne, afin de ne pas être installé là où il ne peut pas démarrer.</translation>
    </message>
    <message>
        <source>Add a Brio requirement with the lowest version that the package was tested with.</source>
        <translation>Ajoutez une exigence Brio avec la plus basse version sur laquelle le paquet a été essayé.</translation>
    </message>
    <message>
        <source>A Brio requirement needs a minimum version; only the maximum is optional. Requirements after the first one without a minimum are not checked.</source>
        <translation>Une exigence Brio a une version minimale ; seule la maximale peut rester ouverte. Les exigences qui suivent la première sans minimum ne sont pas vérifiées.</translation>
    </message>
    <message>
        <source>Set the minimum version of the requirement.</source>
        <translation>Indiquez la version minimale de l&apos;exigence.</translation>
    </message>
    <message>
        <source>The maximum Brio version is lower than the minimum, so no robot can meet the requirement.</source>
        <translation>La version maximale de Brio est inférieure à la version minimale : aucun robot ne peut satisfaire l&apos;exigence.</translation>
    </message>
    <message>
        <source>The package supports the default language but has no name in it. This name also replaces missing ones in other languages; without it, users see the UID.</source>
        <translation>Le paquet prend en charge la langue par défaut et n&apos;y a pas de nom. Ce nom remplace aussi ceux qui manquent dans d&apos;autres langues ; sans lui, l&apos;utilisateur voit l&apos;UID.</translation>
    </message>
    <message>
        <source>Add a name in the default language.</source>
        <translation>Écrivez un nom dans la langue par défaut.</translation>
    </message>
    <message>
        <source>The package supports a language but has no name in it. Users of this language see the name in the default language, or the UID.</source>
        <translation>Le paquet prend en charge une langue et n&apos;y a pas de nom. Les utilisateurs de cette langue voient le nom dans la langue par défaut, ou l&apos;UID.</translation>
    </message>
    <message>
        <source>Add a name in this language, or stop supporting it.</source>
        <translation>Écrivez un nom dans cette langue, ou cessez de la prendre en charge.</translation>
    </message>
    <message>
        <source>The package supports a language but has no description in it. Users of this language see the description in the default language, or none.</source>
        <translation>Le paquet prend en charge une langue et n&apos;y a pas de description. Les utilisateurs de cette langue voient la description dans la langue par défaut, ou aucune.</translation>
    </message>
    <message>
        <source>Add a description in this language, or stop supporting it.</source>
        <translation>Écrivez une description dans cette langue, ou cessez de la prendre en charge.</translation>
    </message>
    <message>
        <source>A behavior with trigger sentences in one language needs them in every supported language; otherwise some users cannot start it by voice.</source>
        <translation>Un comportement qui peut être lancé par une phrase dans une langue doit pouvoir l&apos;être dans toutes les langues prises en charge par le paquet ; sinon il est hors de portée de certains utilisateurs.</translation>
    </message>
    <message>
        <source>Add at least one trigger sentence in this language, or remove those in all languages.</source>
        <translation>Écrivez au moins une phrase de déclenchement dans cette langue, ou retirez celles de toutes les langues.</translation>
    </message>
    <message>
        <source>The value has the wrong type.</source>
        <translation>La valeur est d&apos;un autre type.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; already exists.</source>
        <translation>« %1 » est déjà présent.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is already in use.</source>
        <translation>« %1 » est déjà pris.</translation>
    </message>
    <message>
        <source>Lowest head version</source>
        <translation>Version minimale de la tête</translation>
    </message>
    <message>
        <source>Highest head version</source>
        <translation>Version maximale de la tête</translation>
    </message>
    <message>
        <source>Lowest body version</source>
        <translation>Version minimale du corps</translation>
    </message>
    <message>
        <source>Highest body version</source>
        <translation>Version maximale du corps</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>Nature</source>
        <translation>Nature</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>Autorisation</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Condition</translation>
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
        <source>Tag</source>
        <translation>Mot-clé</translation>
    </message>
    <message>
        <source>Trigger sentence</source>
        <translation>Phrase de déclenchement</translation>
    </message>
    <message>
        <source>Loading response</source>
        <translation>Réponse au chargement</translation>
    </message>
    <message>
        <source>Topic name</source>
        <translation>Nom du sujet</translation>
    </message>
    <message>
        <source>Type version</source>
        <translation>Version du type</translation>
    </message>
    <message>
        <source>Topic file</source>
        <translation>Fichier du sujet</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propriété</translation>
    </message>
    <message>
        <source>UID</source>
        <translation>UID</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Installer</source>
        <translation>Installateur</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Organization</source>
        <translation>Organisation</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Supported language</source>
        <translation>Langue prise en charge</translation>
    </message>
    <message>
        <source>Description language</source>
        <translation>Langue de description</translation>
    </message>
    <message>
        <source>Robot requirement</source>
        <translation>Exigence de robot</translation>
    </message>
    <message>
        <source>Brio requirement</source>
        <translation>Exigence de Brio</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>Comportement</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialogue</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>The text contains half of a surrogate pair, which a manifest cannot represent.</source>
        <translation>Le texte contient une demi-paire de substitution, qu&apos;un manifeste ne peut pas contenir.</translation>
    </message>
    <message>
        <source>The text contains the character U+%1, which a manifest cannot represent.</source>
        <translation>Le texte contient le caractère U+%1, qu&apos;un manifeste ne peut pas contenir.</translation>
    </message>
    <message>
        <source>The field does not allow this change.</source>
        <translation>Le champ ne permet pas cette modification.</translation>
    </message>
    <message>
        <source>The list has no such index.</source>
        <translation>La liste n&apos;a pas cet indice.</translation>
    </message>
    <message>
        <source>There is no package to edit.</source>
        <translation>Il n&apos;y a pas de paquet à modifier.</translation>
    </message>
    <message>
        <source>It is missing.</source>
        <translation>Il manque.</translation>
    </message>
    <message>
        <source>It must be a whole number, 0 or more.</source>
        <translation>Ce doit être un nombre entier, 0 ou plus.</translation>
    </message>
    <message>
        <source>There is no such member.</source>
        <translation>Ce membre n&apos;existe pas.</translation>
    </message>
    <message>
        <source>It must be &apos;set&apos;, &apos;insert&apos;, &apos;remove&apos; or &apos;move&apos;.</source>
        <translation>Ce doit être &apos;set&apos;, &apos;insert&apos;, &apos;remove&apos; ou &apos;move&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not the path of a field.</source>
        <translation>&apos;%1&apos; n&apos;est pas le chemin d&apos;un champ.</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>ligne %1, colonne %2</translation>
    </message>
    <message>
        <source>It is not JSON at %1: %2.</source>
        <translation>Ce n&apos;est pas du JSON à la %1 : %2.</translation>
    </message>
    <message>
        <source>Format %1 is not supported.</source>
        <translation>Le format %1 est inconnu.</translation>
    </message>
    <message>
        <source>Its &apos;%1&apos; is missing.</source>
        <translation>Son champ &apos;%1&apos; manque.</translation>
    </message>
    <message>
        <source>The manifest must have one entry of &apos;%1&apos;.</source>
        <translation>Le manifeste doit avoir une seule entrée de &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>; did you mean &apos;%1&apos;?</source>
        <translation> ; vouliez-vous dire &apos;%1&apos; ?</translation>
    </message>
    <message>
        <source>There is no &apos;%1&apos;%2</source>
        <translation>Il n&apos;y a pas de &apos;%1&apos;%2</translation>
    </message>
    <message>
        <source>There is no item &apos;%1&apos;: the list is empty.</source>
        <translation>Il n&apos;y a pas d&apos;élément &apos;%1&apos; : la liste est vide.</translation>
    </message>
    <message>
        <source>There is no item &apos;%1&apos;; there are 0 to %2.</source>
        <translation>Il n&apos;y a pas d&apos;élément &apos;%1&apos; ; il y a 0 à %2.</translation>
    </message>
    <message>
        <source>There is no field &apos;%1&apos;%2</source>
        <translation>Il n&apos;y a pas de champ &apos;%1&apos;%2</translation>
    </message>
    <message>
        <source>; the fields are %1.</source>
        <translation> ; les champs sont %1.</translation>
    </message>
    <message>
        <source>It does not exist.</source>
        <translation>Il n&apos;y en a pas.</translation>
    </message>
    <message>
        <source>It is written &apos;%1%2&apos;.</source>
        <translation>Il s&apos;écrit &apos;%1%2&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither true nor false.</source>
        <translation>&apos;%1&apos; n&apos;est ni true ni false.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a version, that is, numbers separated by dots as in 2.1.</source>
        <translation>&apos;%1&apos; n&apos;est pas une version : des nombres séparés par des points, comme 2.1.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an entry; set the fields of the entry instead.</source>
        <translation>&apos;%1&apos; n&apos;est pas une entrée ; définissez plutôt les champs de l&apos;entrée.</translation>
    </message>
    <message>
        <source>; available: %1.</source>
        <translation> ; disponibles : %1.</translation>
    </message>
    <message>
        <source>Change it to &apos;%1&apos;</source>
        <translation>Changer en &apos;%1&apos;</translation>
    </message>
    <message>
        <source>Remove the requirement</source>
        <translation>Supprimer l&apos;exigence</translation>
    </message>
    <message>
        <source>Swap minimum and maximum</source>
        <translation>Échanger minimum et maximum</translation>
    </message>
    <message>
        <source>Clear the maximum</source>
        <translation>Effacer le maximum</translation>
    </message>
    <message>
        <source>Stop supporting %1</source>
        <translation>Ne plus prendre en charge : %1</translation>
    </message>
    <message>
        <source>Copy from %1</source>
        <translation>Copier depuis : %1</translation>
    </message>
    <message>
        <source>Rename it to &apos;%1&apos;</source>
        <translation>Renommer en &apos;%1&apos;</translation>
    </message>
    <message>
        <source>Remove the entry</source>
        <translation>Supprimer l&apos;entrée</translation>
    </message>
    <message>
        <source>Remove the permission</source>
        <translation>Supprimer la permission</translation>
    </message>
    <message>
        <source>Clear it</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Remove the language</source>
        <translation>Supprimer la langue</translation>
    </message>
    <message>
        <source>Describe the package in %1</source>
        <translation>Décrire le paquet en : %1</translation>
    </message>
    <message>
        <source>Remove the text</source>
        <translation>Supprimer le texte</translation>
    </message>
    <message>
        <source>Remove the topic</source>
        <translation>Supprimer le sujet</translation>
    </message>
    <message>
        <source>Support %1</source>
        <translation>Prendre en charge : %1</translation>
    </message>
    <message>
        <source>Malformed speech script (line %1, column %2): %3</source>
        <translation>Script vocal mal formé (ligne %1, colonne %2) : %3</translation>
    </message>
    <message>
        <source>A text with markup is a speech script. A malformed script cannot be converted to plain text, so &apos;zel-package publish&apos; refuses the package.</source>
        <translation>Un texte avec des balises est un script vocal. Un script mal formé ne peut pas être converti en texte brut : &apos;zel-package publish&apos; refuse le paquet.</translation>
    </message>
    <message>
        <source>Correct the markup, or write &amp;lt; for a &lt; that does not start a tag.</source>
        <translation>Corrigez les balises, ou écrivez &amp;lt; pour un &lt; qui n&apos;est pas une balise.</translation>
    </message>
    <message>
        <source>Another behavior also has the path &apos;%1&apos;.</source>
        <translation>Un autre comportement a aussi le chemin &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>A behavior is started by its path; if several have the same path, only the first is found.</source>
        <translation>Un comportement est lancé par son chemin ; de plusieurs qui ont le même, seul le premier est trouvé.</translation>
    </message>
    <message>
        <source>Give each behavior a unique path, or remove one of them.</source>
        <translation>Donnez à chaque comportement son propre chemin, ou supprimez l&apos;un d&apos;eux.</translation>
    </message>
    <message>
        <source>Another dialog also has the topic name &apos;%1&apos;.</source>
        <translation>Un autre dialogue a aussi le nom de sujet &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>A dialog is identified by its topic name; if several have the same name, only the first is found.</source>
        <translation>Un dialogue est trouvé par son nom de sujet ; de plusieurs qui ont le même, seul le premier est trouvé.</translation>
    </message>
    <message>
        <source>Give each dialog a unique topic name, or remove one of them.</source>
        <translation>Donnez à chaque dialogue son propre nom de sujet, ou supprimez l&apos;un d&apos;eux.</translation>
    </message>
    <message>
        <source>Another service also has the name &apos;%1&apos;.</source>
        <translation>Un autre service a aussi le nom &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>A service is identified by its name; if several have the same name, only the first is found.</source>
        <translation>Un service est trouvé par son nom ; de plusieurs qui ont le même, seul le premier est trouvé.</translation>
    </message>
    <message>
        <source>Give each service a unique name, or remove one of them.</source>
        <translation>Donnez à chaque service son propre nom, ou supprimez l&apos;un d&apos;eux.</translation>
    </message>
    <message>
        <source>The permission &apos;%1&apos; is listed twice.</source>
        <translation>La permission &apos;%1&apos; est donnée deux fois.</translation>
    </message>
    <message>
        <source>Listing a permission again has no effect.</source>
        <translation>Une permission répétée n&apos;accorde rien de plus.</translation>
    </message>
    <message>
        <source>Remove the duplicate.</source>
        <translation>Supprimez la seconde.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 : c&apos;est vide.</translation>
    </message>
    <message>
        <source>Behaviors, dialogs, services, permissions and properties are identified by their names; an entry without a name cannot be used.</source>
        <translation>Comportements, dialogues, services, permissions et propriétés sont trouvés par leur nom ; sans nom, on ne peut pas s&apos;en servir.</translation>
    </message>
    <message>
        <source>Enter a name, or remove the entry.</source>
        <translation>Écrivez un nom, ou supprimez l&apos;entrée.</translation>
    </message>
    <message>
        <source>Unknown nature &apos;%1&apos;%2</source>
        <translation>Il n&apos;y a pas de nature &apos;%1&apos;%2</translation>
    </message>
    <message>
        <source>The nature defines how a behavior shares the robot with others: &apos;interactive&apos;, &apos;solitary&apos;, or empty.</source>
        <translation>La nature dit comment un comportement partage le robot avec d&apos;autres : &apos;interactive&apos;, &apos;solitary&apos; ou rien.</translation>
    </message>
    <message>
        <source>Choose one of the two, or clear the nature.</source>
        <translation>Choisissez l&apos;une des deux, ou effacez la nature.</translation>
    </message>
    <message>
        <source>Unknown language &apos;%1&apos;%2</source>
        <translation>La langue &apos;%1&apos; n&apos;est pas parmi celles qui sont connues%2</translation>
    </message>
    <message>
        <source>&apos;zel-package languages&apos; does not list this code, so the package will not be offered to users of the language.</source>
        <translation>Le code n&apos;est pas de ceux que &apos;zel-package languages&apos; énumère : ses utilisateurs ne seront pas trouvés.</translation>
    </message>
    <message>
        <source>Correct the code, which consists of a language and a country, as in fr_FR.</source>
        <translation>Corrigez le code, celui d&apos;une langue et d&apos;un pays, comme fr_FR.</translation>
    </message>
    <message>
        <source>Unknown robot &apos;%1&apos;%2</source>
        <translation>Le robot &apos;%1&apos; n&apos;est pas parmi ceux qui sont connus%2</translation>
    </message>
    <message>
        <source>&apos;zel-package robots&apos; does not list this model, so possibly no robot meets the requirement.</source>
        <translation>Le modèle n&apos;est pas de ceux que &apos;zel-package robots&apos; énumère : peut-être aucun robot ne satisfait l&apos;exigence.</translation>
    </message>
    <message>
        <source>Correct the model, or install the description of the robot.</source>
        <translation>Corrigez le modèle, ou installez la description du robot.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a version.</source>
        <translation>&apos;%1&apos; n&apos;est pas une version.</translation>
    </message>
    <message>
        <source>A version consists of decimal numbers separated by dots. Any other value counts as no version.</source>
        <translation>Une version a des nombres séparés par des points. Sous une autre forme, elle compte pour rien.</translation>
    </message>
    <message>
        <source>Write a version such as 2.1.</source>
        <translation>Écrivez une version comme 2.1.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date.</source>
        <translation>&apos;%1&apos; n&apos;est pas une date.</translation>
    </message>
    <message>
        <source>Dates are in the ISO 8601 format, with the year first, so that all programs read them alike.</source>
        <translation>Les dates s&apos;écrivent selon ISO 8601, l&apos;année d&apos;abord, pour que tous les programmes les lisent de même.</translation>
    </message>
    <message>
        <source>Write a date such as 2026-09-14.</source>
        <translation>Écrivez une date comme 2026-09-14.</translation>
    </message>
    <message>
        <source>The package has a text in %1, but does not list the language.</source>
        <translation>Il y a un texte en %1, langue que le paquet n&apos;énumère pas.</translation>
    </message>
    <message>
        <source>The package neither supports the language nor has descriptions in it, so the text is not used, and publishing removes it.</source>
        <translation>Le paquet ne prend pas en charge cette langue et n&apos;y est pas décrit : le texte ne sert pas, et la publication l&apos;écarte.</translation>
    </message>
    <message>
        <source>Add the language to the package, or remove the text.</source>
        <translation>Ajoutez la langue au paquet, ou supprimez le texte.</translation>
    </message>
    <message>
        <source>The text is only white space.</source>
        <translation>Le texte n&apos;a que des espaces.</translation>
    </message>
    <message>
        <source>Users would see an empty name, and the robot would say nothing or wait for nothing.</source>
        <translation>Les utilisateurs verraient un nom vide, et le robot ne dirait ou n&apos;attendrait rien.</translation>
    </message>
    <message>
        <source>Enter a text, or remove it.</source>
        <translation>Écrivez un texte, ou supprimez-le.</translation>
    </message>
    <message>
        <source>There is no topic file &apos;%1&apos; beside the manifest.</source>
        <translation>Il n&apos;y a pas de fichier de sujet &apos;%1&apos; à côté du manifeste.</translation>
    </message>
    <message>
        <source>A dialog has one topic file per language. The path is relative to the manifest&apos;s folder.</source>
        <translation>Un dialogue parle une langue par le fichier de sujet qu&apos;il nomme. Le chemin est relatif au dossier du manifeste.</translation>
    </message>
    <message>
        <source>Correct the path, add the file, or remove the topic.</source>
        <translation>Corrigez le chemin, ajoutez le fichier, ou supprimez le sujet.</translation>
    </message>
    <message>
        <source>The file icon.png beside the manifest is not a PNG image.</source>
        <translation>Le fichier icon.png à côté du manifeste n&apos;est pas une image PNG.</translation>
    </message>
    <message>
        <source>The icon of a package is the PNG image icon.png beside its manifest. Without it, users see the default icon.</source>
        <translation>L&apos;icône d&apos;un paquet est l&apos;image PNG icon.png à côté de son manifeste. Sans elle, les utilisateurs voient l&apos;icône par défaut.</translation>
    </message>
    <message>
        <source>Save the icon as PNG.</source>
        <translation>Enregistrez l&apos;icône en PNG.</translation>
    </message>
    <message>
        <source>No supported language is defined.</source>
        <translation>Aucune langue prise en charge n&apos;est définie.</translation>
    </message>
    <message>
        <source>A package is offered to users of the languages that it supports; this one is offered to nobody.</source>
        <translation>Un paquet est proposé aux utilisateurs des langues qu&apos;il prend en charge ; celui-ci ne l&apos;est à personne.</translation>
    </message>
    <message>
        <source>Add the languages that the package supports.</source>
        <translation>Ajoutez les langues que parle le paquet.</translation>
    </message>
    <message>
        <source>%1 of “%2”</source>
        <translation>%1 de «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Lowest version</source>
        <translation>Version minimale</translation>
    </message>
    <message>
        <source>Highest version</source>
        <translation>Version maximale</translation>
    </message>
    <message>
        <source>%1 of robot requirement %2</source>
        <translation>%1 de l&apos;exigence de robot %2</translation>
    </message>
    <message>
        <source>%1 of Brio requirement %2</source>
        <translation>%1 de l&apos;exigence de Brio %2</translation>
    </message>
    <message>
        <source>User requests</source>
        <translation>Demandes des utilisateurs</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Autorisations</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Conditions</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Trigger sentences</source>
        <translation>Phrases de déclenchement</translation>
    </message>
    <message>
        <source>Loading responses</source>
        <translation>Réponses au chargement</translation>
    </message>
    <message>
        <source>Autostart</source>
        <translation>Démarrage automatique</translation>
    </message>
    <message>
        <source>Supported languages</source>
        <translation>Langues prises en charge</translation>
    </message>
    <message>
        <source>Description languages</source>
        <translation>Langues de description</translation>
    </message>
    <message>
        <source>Robot requirements</source>
        <translation>Exigences de robot</translation>
    </message>
    <message>
        <source>Brio requirements</source>
        <translation>Exigences de Brio</translation>
    </message>
    <message>
        <source>Behaviors</source>
        <translation>Comportements</translation>
    </message>
    <message>
        <source>Dialogs</source>
        <translation>Dialogues</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Services</translation>
    </message>
    <message>
        <source>%1 “%2”</source>
        <translation>%1 «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>%1 for “%2”</source>
        <translation>%1 pour «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>Correct the names of elements and attributes</source>
        <translation>Corriger les noms d&apos;éléments et d&apos;attributs</translation>
    </message>
    <message>
        <source>Keep the current values and remove the comments</source>
        <translation>Garder les valeurs présentes et supprimer les commentaires</translation>
    </message>
    <message>
        <source>Unknown element &lt;%1&gt;%2</source>
        <translation>Élément inconnu &lt;%1&gt;%2</translation>
    </message>
    <message>
        <source>The format has no such element here. It is preserved but ignored.</source>
        <translation>Le format n&apos;a pas un tel élément ici. Il est gardé, et sinon ignoré.</translation>
    </message>
    <message>
        <source>Correct the name. Extensions by other tools should use their own namespace.</source>
        <translation>Corrigez le nom. Les ajouts d&apos;autres outils ont leur place dans leur propre espace de noms.</translation>
    </message>
    <message>
        <source>Unknown attribute &apos;%1&apos; of &lt;%3&gt;%2</source>
        <translation>Attribut inconnu &apos;%1&apos; de &lt;%3&gt;%2</translation>
    </message>
    <message>
        <source>The format has no such attribute here. It is preserved but ignored.</source>
        <translation>Le format n&apos;a pas un tel attribut ici. Il est gardé, et sinon ignoré.</translation>
    </message>
    <message>
        <source>Unresolved merge conflict.</source>
        <translation>Conflit de fusion non résolu.</translation>
    </message>
    <message>
        <source>Both sides of a merge changed the field. The manifest contains one of the values, and a comment before it shows both.</source>
        <translation>Les deux côtés d&apos;une fusion ont changé le champ. Le manifeste a l&apos;une des valeurs, et un commentaire devant elle a les deux.</translation>
    </message>
    <message>
        <source>Choose a value, then remove the comment.</source>
        <translation>Choisissez une valeur, puis supprimez le commentaire.</translation>
    </message>
    <message>
        <source>A later unit has another text for this field.</source>
        <translation>Une unité ultérieure a un autre texte pour ce champ.</translation>
    </message>
    <message>
        <source>The package no longer has this behavior.</source>
        <translation>Le paquet n&apos;a plus ce comportement.</translation>
    </message>
    <message>
        <source>The source text has changed since the export.</source>
        <translation>Le texte source a changé depuis l&apos;exportation.</translation>
    </message>
    <message>
        <source>An item before this one has no text yet.</source>
        <translation>Un élément qui précède celui-ci n&apos;a pas encore de texte.</translation>
    </message>
    <message>
        <source>Malformed speech script: %1</source>
        <translation>Script vocal mal formé : %1</translation>
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
        <source>A document type declaration is not allowed.</source>
        <translation>Une déclaration de type de document n&apos;est pas admise.</translation>
    </message>
    <message>
        <source>Text is not allowed here.</source>
        <translation>Du texte n&apos;est pas admis ici.</translation>
    </message>
    <message>
        <source>The element &lt;%1&gt; is not allowed here.</source>
        <translation>L&apos;élément &lt;%1&gt; n&apos;est pas admis ici.</translation>
    </message>
    <message>
        <source>The root element is &lt;%1&gt; instead of &lt;xliff&gt;.</source>
        <translation>L&apos;élément racine est &lt;%1&gt; au lieu de &lt;xliff&gt;.</translation>
    </message>
    <message>
        <source>This is XLIFF &quot;%1&quot; in the namespace &quot;%2&quot; rather than XLIFF 1.2.</source>
        <translation>C&apos;est du XLIFF &quot;%1&quot; dans l&apos;espace de noms &quot;%2&quot; au lieu de XLIFF 1.2.</translation>
    </message>
    <message>
        <source>The element &lt;file&gt; lacks the attribute &quot;source-language&quot;.</source>
        <translation>Il manque à l&apos;élément &lt;file&gt; l&apos;attribut &quot;source-language&quot;.</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; has no element &lt;source&gt;.</source>
        <translation>L&apos;unité &quot;%1&quot; n&apos;a pas d&apos;élément &lt;source&gt;.</translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is not declared.</source>
        <translation>L&apos;entité &quot;%1&quot; n&apos;est pas déclarée.</translation>
    </message>
    <message>
        <source>The placeholder &lt;%1&gt; lacks the attribute &quot;equiv-text&quot;, without which its text is unknown.</source>
        <translation>Il manque à l&apos;élément &lt;%1&gt; l&apos;attribut &quot;equiv-text&quot;, sans lequel son texte est inconnu.</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; has no path of a text in a package.</source>
        <translation>L&apos;unité &quot;%1&quot; n&apos;a pas de chemin d&apos;un texte de paquet.</translation>
    </message>
    <message>
        <source>The file is larger than 256 MiB.</source>
        <translation>Le fichier dépasse 256 Mio.</translation>
    </message>
    <message>
        <source>The language is the source language too.</source>
        <translation>La langue est aussi la langue source.</translation>
    </message>
    <message>
        <source>The source language has no such text.</source>
        <translation>La langue source n&apos;a pas ce texte.</translation>
    </message>
    <message>
        <source>This is a speech script: keep the markup in angle brackets, and translate the text around it.</source>
        <translation>C&apos;est un script vocal : conservez le balisage entre chevrons et traduisez le texte autour.</translation>
    </message>
    <message>
        <source>A tag is longer than 64 KiB.</source>
        <translation>Une balise dépasse 64 Kio.</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1&#xa0;: ajout</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1&#xa0;: suppression</translation>
    </message>
    <message>
        <source>The package replaced</source>
        <translation>Le paquet est remplacé</translation>
    </message>
    <message>
        <source>%1 replaced</source>
        <translation>%1 remplacé</translation>
    </message>
    <message>
        <source>%1 renamed to “%2”</source>
        <translation>%1&#xa0;: nouveau nom «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>%1 changed from %2 to %3</source>
        <translation>%1&#xa0;: %2 devient %3</translation>
    </message>
    <message>
        <source>%1 moved to position %2</source>
        <translation>%1&#xa0;: déplacement à la place %2</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Ajouter : %1</translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>Ajouter à : %1</translation>
    </message>
    <message>
        <source>Replace the package</source>
        <translation>Remplacer le paquet</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Renommer : %1</translation>
    </message>
    <message>
        <source>Set %1</source>
        <translation>Modifier : %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Retirer : %1</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Déplacer : %1</translation>
    </message>
    <message>
        <source>%1 (and %2 more)</source>
        <translation>%1 (et %2 autres)</translation>
    </message>
    <message>
        <source>en-US</source>
        <extracomment>The language of this translation, as RFC 5646 writes it.</extracomment>
        <translation>fr</translation>
    </message>
</context>
<context>
    <name>Zel::PackageStringCommand</name>
    <message>
        <source>installer</source>
        <translation>programme d&apos;installation</translation>
    </message>
    <message>
        <source>id</source>
        <translation>identifiant</translation>
    </message>
    <message>
        <source>type version</source>
        <translation>version de type</translation>
    </message>
    <message>
        <source>author</source>
        <translation>auteur</translation>
    </message>
    <message>
        <source>organization</source>
        <translation>organisation</translation>
    </message>
    <message>
        <source>date</source>
        <translation>date</translation>
    </message>
    <message>
        <source>channel</source>
        <translation>canal</translation>
    </message>
    <message>
        <source>path</source>
        <translation>chemin</translation>
    </message>
    <message>
        <source>Set application&apos;s %1</source>
        <translation>Modifier l&apos;application : %1</translation>
    </message>
</context>
<context>
    <name>Zel::RobotRequirement</name>
    <message>
        <source>any model</source>
        <translation>tous modèles</translation>
    </message>
</context>
</TS>
