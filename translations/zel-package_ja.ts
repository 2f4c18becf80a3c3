<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>&apos;%1&apos; の後に値がありません。</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>&apos;%1&apos; の後に余分な値があります。</translation>
    </message>
</context>
<context>
    <name>Tano</name>
    <message>
        <source>There is not enough memory for the manifest.</source>
        <translation>マニフェストを読み込むためのメモリが足りません。</translation>
    </message>
    <message>
        <source>The text is UTF-16; a manifest is UTF-8.</source>
        <translation>テキストは UTF-16 です。マニフェストは UTF-8 です。</translation>
    </message>
    <message>
        <source>XML version &quot;%1&quot; is not supported; a manifest is XML 1.0.</source>
        <translation>XML のバージョン「%1」には対応していません。マニフェストは XML 1.0 です。</translation>
    </message>
    <message>
        <source>The encoding &quot;%1&quot; is not supported; a manifest is UTF-8.</source>
        <translation>文字コード「%1」には対応していません。マニフェストは UTF-8 です。</translation>
    </message>
    <message>
        <source>A document type declaration is not allowed.</source>
        <translation>文書型宣言は使えません。</translation>
    </message>
    <message>
        <source>An &quot;&amp;&quot; starts a reference here; write &amp;amp; for the character itself.</source>
        <translation>ここでは「&amp;」が参照の始まりになります。文字そのものは &amp;amp; と書きます。</translation>
    </message>
    <message>
        <source>A NUL byte is not allowed.</source>
        <translation>NUL バイトは使えません。</translation>
    </message>
    <message>
        <source>The bytes here are not valid UTF-8, or encode a character that XML does not allow.</source>
        <translation>ここのバイト列は正しい UTF-8 ではないか、XML で使えない文字を表しています。</translation>
    </message>
    <message>
        <source>A &quot;&lt;&quot; starts a tag here; write &amp;lt; for the character itself.</source>
        <translation>ここでは「&lt;」がタグの始まりになります。文字そのものは &amp;lt; と書きます。</translation>
    </message>
    <message>
        <source>The text is not well-formed XML.</source>
        <translation>テキストは整形式の XML ではありません。</translation>
    </message>
    <message>
        <source>The text is not well-formed XML: %1.</source>
        <translation>テキストは整形式の XML ではありません: %1。</translation>
    </message>
    <message>
        <source>A control character is not allowed.</source>
        <translation>制御文字は使えません。</translation>
    </message>
    <message>
        <source>The character &quot;%1&quot; is not allowed here.</source>
        <translation>ここでは文字「%1」を使えません。</translation>
    </message>
    <message>
        <source>The manifest ends in the middle of a tag or character.</source>
        <translation>マニフェストがタグまたは文字の途中で終わっています。</translation>
    </message>
    <message>
        <source>The manifest ends in the middle of a CDATA section.</source>
        <translation>マニフェストが CDATA セクションの途中で終わっています。</translation>
    </message>
    <message>
        <source>The script ends in the middle of a tag or character.</source>
        <translation>スクリプトがタグまたは文字の途中で終わっています。</translation>
    </message>
    <message>
        <source>The script ends in the middle of a CDATA section.</source>
        <translation>スクリプトが CDATA セクションの途中で終わっています。</translation>
    </message>
    <message>
        <source>The end tag does not match the open element.</source>
        <translation>終了タグが開いている要素と一致しません。</translation>
    </message>
    <message>
        <source>An attribute occurs twice on one element.</source>
        <translation>1 つの要素に同じ属性が 2 回あります。</translation>
    </message>
    <message>
        <source>The entity is not defined; only &amp;amp;, &amp;lt;, &amp;gt;, &amp;quot; and &amp;apos; are.</source>
        <translation>この実体は定義されていません。使えるのは &amp;amp;、&amp;lt;、&amp;gt;、&amp;quot;、&amp;apos; だけです。</translation>
    </message>
    <message>
        <source>The text is not XML: it does not start with a tag.</source>
        <translation>テキストは XML ではありません。タグで始まっていません。</translation>
    </message>
    <message>
        <source>The reference denotes a character that XML does not allow.</source>
        <translation>参照先の文字は XML では使えません。</translation>
    </message>
    <message>
        <source>There is content after the end of the root element.</source>
        <translation>ルート要素の終わりの後に内容があります。</translation>
    </message>
    <message>
        <source>The XML declaration must be at the very start.</source>
        <translation>XML 宣言が先頭にありません。</translation>
    </message>
    <message>
        <source>The name of a processing instruction, &quot;%1&quot;, cannot contain a colon.</source>
        <translation>処理命令の名前「%1」にコロンは使えません。</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is not a prefix and a name with a colon between them.</source>
        <translation>名前「%1」は、コロンで区切った接頭辞と名前の形になっていません。</translation>
    </message>
    <message>
        <source>The prefix &quot;%1&quot; is declared without a namespace.</source>
        <translation>接頭辞「%1」が名前空間なしで宣言されています。</translation>
    </message>
    <message>
        <source>The prefix &quot;%1&quot; is not declared.</source>
        <translation>接頭辞「%1」が宣言されていません。</translation>
    </message>
    <message>
        <source>The declaration &quot;%1&quot; is of a reserved prefix or namespace.</source>
        <translation>宣言「%1」は予約された接頭辞または名前空間のものです。</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; occurs twice in the same namespace.</source>
        <translation>属性「%1」が同じ名前空間に 2 回あります。</translation>
    </message>
    <message>
        <source>The root element is &lt;%1&gt; instead of &lt;package&gt;.</source>
        <translation>ルート要素が &lt;package&gt; ではなく &lt;%1&gt; です。</translation>
    </message>
    <message>
        <source>The root element &lt;package&gt; is in the namespace &quot;%1&quot;; a manifest has no namespace.</source>
        <translation>ルート要素 &lt;package&gt; が名前空間「%1」にあります。マニフェストは名前空間に属しません。</translation>
    </message>
    <message>
        <source>Text is not allowed in &lt;%1&gt;.</source>
        <translation>&lt;%1&gt; の中にテキストは書けません。</translation>
    </message>
    <message>
        <source>The element %1 occurs twice in %2.</source>
        <translation>要素 %1 が %2 の中に 2 回あります。</translation>
    </message>
    <message>
        <source>The manifest is empty.</source>
        <translation>マニフェストが空です。</translation>
    </message>
    <message>
        <source>The manifest ends before its root element.</source>
        <translation>マニフェストがルート要素の前で終わっています。</translation>
    </message>
    <message>
        <source>The manifest ends while %1 is open.</source>
        <translation>%1 が開いたままマニフェストが終わっています。</translation>
    </message>
    <message>
        <source>The format &quot;%1&quot; is newer than the one that this version reads, &quot;%2&quot;.</source>
        <translation>形式「%1」は、このバージョンが読める形式「%2」より新しいものです。</translation>
    </message>
    <message>
        <source>The format &quot;%1&quot; is unknown; this version reads &quot;%2&quot;.</source>
        <translation>形式「%1」は不明です。このバージョンが読めるのは「%2」です。</translation>
    </message>
    <message>
        <source>The element &lt;%1&gt; lacks the attribute &quot;%2&quot;.</source>
        <translation>要素 &lt;%1&gt; に属性「%2」がありません。</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; of &lt;%2&gt; is longer than 4 KiB.</source>
        <translation>&lt;%2&gt; の属性「%1」が 4 KiB を超えています。</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; of &lt;%2&gt; is &quot;%3&quot; instead of &quot;true&quot; or &quot;false&quot;.</source>
        <translation>&lt;%2&gt; の属性「%1」が「true」でも「false」でもなく「%3」です。</translation>
    </message>
    <message>
        <source>A tag, comment or processing instruction is longer than 1 MiB.</source>
        <translation>タグ、コメント、または処理命令が 1 MiB を超えています。</translation>
    </message>
    <message>
        <source>More than %1 elements are nested.</source>
        <translation>要素の入れ子が %1 段を超えています。</translation>
    </message>
    <message>
        <source>The element &lt;%1&gt; has more than %2 attributes.</source>
        <translation>要素 &lt;%1&gt; の属性が %2 個を超えています。</translation>
    </message>
    <message>
        <source>The field %1 contains the control character %2, which XML cannot represent.</source>
        <translation>フィールド %1 に、XML に書けない制御文字 %2 が含まれています。</translation>
    </message>
    <message>
        <source>The package contains the control character %1, which XML cannot represent.</source>
        <translation>パッケージに、XML に書けない制御文字 %1 が含まれています。</translation>
    </message>
    <message>
        <source>The field %1 contains the byte %2, which does not start a valid XML character.</source>
        <translation>フィールド %1 に、XML に書ける文字の始まりではないバイト %2 が含まれています。</translation>
    </message>
    <message>
        <source>The package contains the byte %1, which does not start a valid XML character.</source>
        <translation>パッケージに、XML に書ける文字の始まりではないバイト %1 が含まれています。</translation>
    </message>
    <message>
        <source>The field %1 cannot be saved: its key is longer than 4 KiB.</source>
        <translation>フィールド %1 を保存できません。キーが 4 KiB を超えています。</translation>
    </message>
    <message>
        <source>The field %1 is too long to be saved: a tag holds at most 1 MiB.</source>
        <translation>フィールド %1 は長すぎて保存できません。タグは 1 MiB までです。</translation>
    </message>
    <message>
        <source>The package is too long to be saved: a tag holds at most 1 MiB.</source>
        <translation>パッケージは長すぎて保存できません。タグは 1 MiB までです。</translation>
    </message>
    <message>
        <source>A &quot;.&quot; or &quot;[&quot; is missing after the selector.</source>
        <translation>セレクターの後に「.」または「[」がありません。</translation>
    </message>
    <message>
        <source>The name of a field is missing.</source>
        <translation>フィールド名がありません。</translation>
    </message>
    <message>
        <source>The name of a field cannot contain &quot;]&quot; or &quot;\&quot;.</source>
        <translation>フィールド名に「]」や「\」は使えません。</translation>
    </message>
    <message>
        <source>A &quot;\&quot; must precede &quot;]&quot;, &quot;\&quot; or &quot;+&quot;.</source>
        <translation>「\」の後には「]」「\」「+」のいずれかが必要です。</translation>
    </message>
    <message>
        <source>The &quot;]&quot; of this selector is missing.</source>
        <translation>このセレクターの「]」がありません。</translation>
    </message>
    <message>
        <source>The end tag has no start tag.</source>
        <translation>終了タグに対応する開始タグがありません。</translation>
    </message>
    <message>
        <source>The element &lt;speak&gt; is within another element; it can only be the root.</source>
        <translation>要素 &lt;speak&gt; が別の要素の中にあります。ルートにしか使えません。</translation>
    </message>
    <message>
        <source>The repeat &quot;%1&quot; is malformed; it is a number, or a range such as 0-1 or 1-.</source>
        <translation>繰り返し「%1」の形式が正しくありません。数、または 0-1 や 1- のような範囲です。</translation>
    </message>
    <message>
        <source>There is text between the alternatives of &lt;one-of&gt;; each must be an &lt;item&gt;.</source>
        <translation>&lt;one-of&gt; の選択肢の外にテキストがあります。選択肢はそれぞれ &lt;item&gt; です。</translation>
    </message>
    <message>
        <source>The script ends while %1 is open.</source>
        <translation>%1 が開いたままスクリプトが終わっています。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be saved: %2. The old content of &quot;%3&quot; is lost: %4.</source>
        <translation>ファイル「%1」を保存できません: %2。「%3」の元の内容は失われました: %4。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be saved: %2.</source>
        <translation>ファイル「%1」を保存できません: %2。</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>シンボリックリンクです</translation>
    </message>
    <message>
        <source>it is a link to a missing file</source>
        <translation>リンク先のファイルがありません</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>another program has locked it</source>
        <translation>別のプログラムがロックしています</translation>
    </message>
    <message>
        <source>another program has changed it since it was read</source>
        <translation>読み込んだ後に別のプログラムが変更しました</translation>
    </message>
    <message>
        <source>another program has replaced it</source>
        <translation>別のプログラムが置き換えました</translation>
    </message>
    <message>
        <source>%1, and its old content is lost; the new one is in &quot;%2&quot;</source>
        <translation>%1。元の内容は失われました。新しい内容は「%2」にあります</translation>
    </message>
    <message>
        <source>it is a device</source>
        <translation>デバイスです</translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>%1 を超えています</translation>
    </message>
</context>
<context>
    <name>zel-package</name>
    <message>
        <source>Cannot write to standard output: %1.</source>
        <translation>標準出力に書き込めません: %1</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>package</source>
        <translation>パッケージ</translation>
    </message>
    <message>
        <source>behaviors</source>
        <translation>ビヘイビア</translation>
    </message>
    <message>
        <source>names</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>descr.</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>tags</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>triggers</source>
        <translation>トリガー</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <source>topics</source>
        <translation>トピック</translation>
    </message>
    <message>
        <source>The package only has descriptions in this language.</source>
        <translation>パッケージはこの言語では説明のみ提供されます。</translation>
    </message>
    <message>
        <source>The package does not list this language.</source>
        <translation>パッケージはこの言語を挙げていません。</translation>
    </message>
    <message>
        <source>rule</source>
        <translation>規則</translation>
    </message>
    <message>
        <source>severity</source>
        <translation>重大度</translation>
    </message>
    <message>
        <source>message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Standard input.</source>
        <translation>標準入力。</translation>
    </message>
    <message>
        <source>Write nothing; print the names of files that are not in canonical form.</source>
        <translation>マニフェストを書き込まず、正規形でないファイルの名前を表示する。</translation>
    </message>
    <message>
        <source>Rewrite manifests in canonical form</source>
        <translation>マニフェストを正規形に書き直す</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a language code; did you mean %2?</source>
        <translation>&apos;%1&apos; は言語コードではありません。%2 のことですか?</translation>
    </message>
    <message>
        <source>code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>speech</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>native name</source>
        <translation>その言語での名前</translation>
    </message>
    <message>
        <source>List the known languages</source>
        <translation>既知の言語を一覧にする</translation>
    </message>
    <message>
        <source>The package&apos;s identifier: up to 50 of a-z, 0-9, &apos;_&apos; and &apos;-&apos;, but not only digits.</source>
        <translation>パッケージの識別子。a-z、0-9、&apos;_&apos;、&apos;-&apos; からなる 50 文字以内で、数字だけのものは使えません。</translation>
    </message>
    <message>
        <source>The package&apos;s name, in the first language.</source>
        <translation>最初の言語でのパッケージの名前。</translation>
    </message>
    <message>
        <source>A language that the package supports, such as fr_FR; may be repeated. The default is %1.</source>
        <translation>パッケージが対応する言語。例: fr_FR。複数回指定できます。指定がない場合は %1。</translation>
    </message>
    <message>
        <source>FILE --uid UID [--name TEXT] [--language CODE]...</source>
        <translation>ファイル --uid UID [--name テキスト] [--language コード]...</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>使い方: %1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Show the version of the program.</source>
        <translation>プログラムのバージョンを表示する。</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>このヘルプを表示する。</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;%2</source>
        <translation>オプション &apos;%1&apos; はありません%2</translation>
    </message>
    <message>
        <source>; &apos;%1 --help&apos; lists the options.</source>
        <translation>。オプションの一覧は &apos;%1 --help&apos; で表示できます。</translation>
    </message>
    <message>
        <source>Unknown command &apos;%1&apos;%2</source>
        <translation>コマンド &apos;%1&apos; はありません%2</translation>
    </message>
    <message>
        <source>The manifest is malformed.</source>
        <translation>マニフェストの形式が正しくありません。</translation>
    </message>
    <message>
        <source>; &apos;zel-package explain&apos; lists the rules.</source>
        <translation>。規則の一覧は &apos;zel-package explain&apos; で表示できます。</translation>
    </message>
    <message>
        <source>; did you mean &apos;%1&apos;?</source>
        <translation>。&apos;%1&apos; のことですか?</translation>
    </message>
    <message>
        <source>Unknown rule &apos;%1&apos;%2</source>
        <translation>規則 &apos;%1&apos; はありません%2</translation>
    </message>
    <message>
        <source>Show every text in this language; &apos;!&apos; marks missing ones.</source>
        <translation>すべてのテキストをこの言語で表示する。&apos;!&apos; は欠けているものを示します。</translation>
    </message>
    <message>
        <source>The output format: text or json.</source>
        <translation>出力の形式: text または json。</translation>
    </message>
    <message>
        <source>Unknown format &apos;%1&apos;%2</source>
        <translation>形式 &apos;%1&apos; はありません%2</translation>
    </message>
    <message>
        <source>; it is either text or json.</source>
        <translation>。text または json を指定してください。</translation>
    </message>
    <message>
        <source>--format json shows all languages and takes no --language.</source>
        <translation>--format json はすべての言語を表示するため、--language は指定できません。</translation>
    </message>
    <message>
        <source>FILE [--language CODE] [--format text|json]</source>
        <translation>ファイル [--language コード] [--format text|json]</translation>
    </message>
    <message>
        <source>missing in %1</source>
        <translation>%1 にありません</translation>
    </message>
    <message>
        <source>this is the uid</source>
        <translation>これは uid です</translation>
    </message>
    <message>
        <source>type version</source>
        <translation>種別バージョン</translation>
    </message>
    <message>
        <source>Runs in</source>
        <translation>対応言語</translation>
    </message>
    <message>
        <source>Described in</source>
        <translation>説明の言語</translation>
    </message>
    <message>
        <source>the same languages</source>
        <translation>同じ言語</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>識別情報</translation>
    </message>
    <message>
        <source>description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>名前なし</translation>
    </message>
    <message>
        <source>%1 or later</source>
        <translation>%1 以降</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>%1 まで</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 ～ %2</translation>
    </message>
    <message>
        <source>head %1</source>
        <translation>ヘッド %1</translation>
    </message>
    <message>
        <source>body %1</source>
        <translation>ボディ %1</translation>
    </message>
    <message>
        <source>any version</source>
        <translation>すべてのバージョン</translation>
    </message>
    <message>
        <source>any robot</source>
        <translation>すべてのロボット</translation>
    </message>
    <message>
        <source>robots</source>
        <translation>ロボット</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Requirements</source>
        <translation>要件</translation>
    </message>
    <message>
        <source>Translations</source>
        <translation>翻訳</translation>
    </message>
    <message>
        <source>%1 if</source>
        <translation>%1 の条件</translation>
    </message>
    <message>
        <source>this is the path</source>
        <translation>これはパスです</translation>
    </message>
    <message>
        <source>nature</source>
        <translation>種別</translation>
    </message>
    <message>
        <source>permissions</source>
        <translation>権限</translation>
    </message>
    <message>
        <source>Behaviors in %1</source>
        <translation>%1 のビヘイビア</translation>
    </message>
    <message>
        <source>Dialogs</source>
        <translation>ダイアログ</translation>
    </message>
    <message>
        <source>command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>starts</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>with the robot</source>
        <translation>ロボットと同時</translation>
    </message>
    <message>
        <source>on demand</source>
        <translation>必要なとき</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>サービス</translation>
    </message>
    <message>
        <source>Texts in %1</source>
        <translation>%1 のテキスト</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>missing in %1; this is %2</source>
        <translation>%1 にありません。これは %2 です</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be ignored.</source>
        <translation>&apos;%1&apos; は無視できません。</translation>
    </message>
    <message>
        <source>Checked %1 of %2</source>
        <translation>%2 件中 %1 件を検査しました</translation>
    </message>
    <message>
        <source>Manifests: %1, errors: %2, warnings: %3</source>
        <translation>マニフェスト: %1、エラー: %2、警告: %3</translation>
    </message>
    <message>
        <source>, malformed: %1</source>
        <translation>、形式不正: %1</translation>
    </message>
    <message>
        <source>, unreadable: %1</source>
        <translation>、読み込み不可: %1</translation>
    </message>
    <message>
        <source>Write nothing; print the changes as a unified diff.</source>
        <translation>何も書き込まず、変更点を unified diff 形式で表示する。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form FIELD=VALUE, as in author=Ines or names[en_US]=Tea.</source>
        <translation>&apos;%1&apos; は フィールド=値 の形ではありません。例: author=Ines、names[en_US]=Tea。</translation>
    </message>
    <message>
        <source>Write to this file; the default, also &apos;-&apos;, is standard output.</source>
        <translation>このファイルに書き込む。指定がないか &apos;-&apos; の場合は標準出力。</translation>
    </message>
    <message>
        <source>robot</source>
        <translation>ロボット</translation>
    </message>
    <message>
        <source>model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>List the known robots</source>
        <translation>既知のロボットを一覧にする</translation>
    </message>
    <message>
        <source>Scripts in</source>
        <translation>スクリプトの言語</translation>
    </message>
    <message>
        <source>Of each rule, only the first %1 findings are listed.</source>
        <translation>各規則につき、最初の%1件だけを表示します。</translation>
    </message>
    <message>
        <source>It does not exist, so nothing is removed.</source>
        <translation>ないので、何も削除しません。</translation>
    </message>
    <message>
        <source>This is an entry: an empty VALUE removes it, and &apos;%1.FIELD=VALUE&apos; sets one of its fields.</source>
        <translation>これは項目です。空の VALUE で削除し、そのフィールドは &apos;%1.FIELD=VALUE&apos; と設定します。</translation>
    </message>
    <message>
        <source>This is a list: &apos;%1[+]=VALUE&apos; adds to it, &apos;%1[+]@INDEX=VALUE&apos; at an index.</source>
        <translation>これはリストです。&apos;%1[+]=VALUE&apos; で追加し、&apos;%1[+]@INDEX=VALUE&apos; でその位置に追加します。</translation>
    </message>
    <message>
        <source>&apos;@INDEX&apos; with a value adds an entry, so it follows the key [+].</source>
        <translation>値のある &apos;@INDEX&apos; は項目を追加するので、キー [+] の後に書きます。</translation>
    </message>
    <message>
        <source>Also removes %1.</source>
        <translation>%1 も削除します。</translation>
    </message>
    <message>
        <source>Set fields of manifests</source>
        <translation>マニフェストのフィールドを設定する</translation>
    </message>
    <message>
        <source>FILE... FIELD=VALUE... [--edits FILE] [--dry-run]</source>
        <translation>FILE... FIELD=VALUE... [--edits FILE] [--dry-run]</translation>
    </message>
    <message>
        <source>Print fields of a manifest</source>
        <translation>マニフェストのフィールドを表示する</translation>
    </message>
    <message>
        <source>FILE FIELD...</source>
        <translation>FILE FIELD...</translation>
    </message>
    <message>
        <source>Prints the values of fields, named as in &apos;show --format json&apos;: author, names[fr_FR], behaviors[greet].tags[en_US][0]. For a list or an entry, such as names or behaviors[greet], prints FIELD=VALUE for each field in it. The exit status is 1 if the package has no such entry. &apos;-&apos; reads standard input.</source>
        <translation>&apos;show --format json&apos; と同じ名前のフィールドの値を表示します: author、names[fr_FR]、behaviors[greet].tags[en_US][0]。names や behaviors[greet] のようなリストや項目では、その各フィールドを FIELD=VALUE と表示します。パッケージにその項目がなければ終了コードは 1 です。&apos;-&apos; は標準入力を読みます。</translation>
    </message>
    <message>
        <source>The language &apos;%1&apos; is unknown, but its code is accepted.</source>
        <translation>言語 &apos;%1&apos; は不明ですが、コードは受け付けました。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a language code; &apos;zel-package languages&apos; lists the known codes.</source>
        <translation>&apos;%1&apos; は言語コードではありません。既知のコードは &apos;zel-package languages&apos; で確認できます。</translation>
    </message>
    <message>
        <source>The argument &apos;%1&apos; is not valid UTF-8.</source>
        <translation>引数 &apos;%1&apos; は正しい UTF-8 ではありません。</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>A reason as a sentence of its own.</extracomment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>[--format text|json]</source>
        <translation>[--format text|json]</translation>
    </message>
    <message>
        <source>Lists the known languages: the code used in manifests, the name, the code of the speech engine if it has a voice, and the native name. Manifests may also use other languages.</source>
        <translation>既知の言語を一覧表示します。マニフェストでのコード、名前、音声があれば音声エンジンのコード、その言語での名前です。マニフェストではほかの言語も使えます。</translation>
    </message>
    <message>
        <source>Lists the robot families and models that a package may require, with the model to use in a robot requirement; it is empty for any robot. Manifests may also require other robots.</source>
        <translation>パッケージが必要とできるロボットのシリーズと機種を、ロボット要件に書くモデルとともに一覧表示します。どのロボットでもよい場合、モデルは空です。マニフェストではほかのロボットも指定できます。</translation>
    </message>
    <message>
        <source>--format json needs --check.</source>
        <translation>--format json には --check が必要です。</translation>
    </message>
    <message>
        <source>FILE... [--check [--format text|json]]</source>
        <translation>FILE... [--check [--format text|json]]</translation>
    </message>
    <message>
        <source>Rewrites each FILE in canonical form, preserving comments, unknown elements and unknown attributes. Files already in canonical form are left unchanged. &apos;-&apos; reads standard input and writes to standard output.</source>
        <translation>各 FILE を正準形に書き直します。コメント、未知の要素、未知の属性は保たれます。すでに正準形のファイルは変更しません。&apos;-&apos; は標準入力から読み、標準出力に書きます。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid UID; &apos;zel-package explain uid-invalid&apos; describes one.</source>
        <translation>&apos;%1&apos; は正しい UID ではありません。形式は &apos;zel-package explain uid-invalid&apos; で確認できます。</translation>
    </message>
    <message>
        <source>Created %1, version %2. Still needed: %3.</source>
        <translation>%1 を作成しました。バージョン %2 です。まだ必要なもの: %3。</translation>
    </message>
    <message>
        <source>Missing option --uid UID.</source>
        <translation>オプション --uid UID がありません。</translation>
    </message>
    <message>
        <source>Create a manifest</source>
        <translation>マニフェストを作成する</translation>
    </message>
    <message>
        <source>Creates FILE, the manifest of a new package with version 1.0.0. Never overwrites an existing file. &apos;-&apos; writes to standard output.</source>
        <translation>バージョン 1.0.0 の新しいパッケージのマニフェスト FILE を作成します。既存のファイルは上書きしません。&apos;-&apos; は標準出力に書きます。</translation>
    </message>
    <message>
        <source>%1: Malformed speech script (line %2, column %3): %4</source>
        <translation>%1: 発話スクリプトの形式が正しくありません (%2 行 %3 桁): %4</translation>
    </message>
    <message>
        <source>The output cannot be the manifest itself.</source>
        <translation>マニフェスト自身を出力先にはできません。</translation>
    </message>
    <message>
        <source>--format json prints to standard output and needs an --output.</source>
        <translation>--format json は標準出力に書くため、--output が必要です。</translation>
    </message>
    <message>
        <source>This manifest was published before; the scripts stored beside its texts are dropped.</source>
        <translation>このマニフェストはすでに公開用です。テキストに添えられたスクリプトは取り除かれます。</translation>
    </message>
    <message>
        <source>Write a manifest for publication</source>
        <translation>公開用のマニフェストを書き出す</translation>
    </message>
    <message>
        <source>FILE [-o OUT] [--format text|json]</source>
        <translation>FILE [-o OUT] [--format text|json]</translation>
    </message>
    <message>
        <source>Writes the manifest in FILE for publication: removes texts in languages that the package no longer offers, and replaces speech scripts by plain text, keeping the scripts in a private-use variant of their language. If a text is a malformed script, reports it and writes nothing. &apos;-&apos; reads standard input.</source>
        <translation>FILE のマニフェストを公開用に書き出します。パッケージが提供しなくなった言語のテキストは除き、発話スクリプトはプレーンテキストに置き換えて、元のスクリプトはその言語の私用の変種に残します。形式の正しくないスクリプトがあれば、それを報告して何も書きません。&apos;-&apos; は標準入力から読みます。</translation>
    </message>
    <message>
        <source>Creates, shows, checks, edits and rewrites the manifests of robot application packages.</source>
        <translation>ロボットアプリケーションパッケージのマニフェストを作成、表示、検査、編集、書き直します。</translation>
    </message>
    <message>
        <source>Show this help; after a command, its help.</source>
        <translation>このヘルプを表示します。コマンドの後では、そのコマンドのヘルプです。</translation>
    </message>
    <message>
        <source>Missing argument %1; usage: %2</source>
        <translation>引数 %1 がありません。使い方: %2</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>余分な引数 &apos;%1&apos; があります。</translation>
    </message>
    <message>
        <source>The value cannot be empty.</source>
        <translation>値を空にはできません。</translation>
    </message>
    <message>
        <source>It needs a language, as in %1[en_US].</source>
        <translation>%1[en_US] のように言語が必要です。</translation>
    </message>
    <message>
        <source>First apply the edits in this JSON file (see schema/edits.schema.json); &apos;-&apos; is standard input.</source>
        <translation>まずこの JSON ファイルの編集を適用します。形式は schema/edits.schema.json にあります。&apos;-&apos; は標準入力です。</translation>
    </message>
    <message>
        <source>Missing argument FILE.</source>
        <translation>引数 FILE がありません。</translation>
    </message>
    <message>
        <source>&apos;-&apos; can be given only once.</source>
        <translation>&apos;-&apos; は 1 回だけ指定できます。</translation>
    </message>
    <message>
        <source>Sets fields, named as in &apos;show --format json&apos;: author=Ines, names[fr_FR]=Goûter, robotRequirements[0].maxBodyVersion=3.1, behaviors[greet].tags[en_US][0]=hello. An empty VALUE clears a text or removes an entry or item: behaviors[greet]=. The key [+] adds to a list: supportedLanguages[+]=fr_FR, behaviors[+].path=greet; &apos;@INDEX&apos; adds at an index, counted from 0: supportedLanguages[+]@0=fr_FR. &apos;ENTRY@INDEX&apos; moves an entry: behaviors[greet]@0. Adding an existing entry or removing a missing one changes nothing, so commands can be repeated. If one field is wrong, no file is changed. Files are rewritten in canonical form without losing content. &apos;-&apos; reads standard input and writes to standard output; give a file whose name contains &apos;=&apos; with its folder, as in ./a=b.xml.</source>
        <translation>&apos;show --format json&apos; と同じ名前のフィールドを設定します: author=Ines、names[fr_FR]=Goûter、robotRequirements[0].maxBodyVersion=3.1、behaviors[greet].tags[en_US][0]=hello。空の VALUE はテキストを消し、項目を削除します: behaviors[greet]=。キー [+] はリストに追加します: supportedLanguages[+]=fr_FR、behaviors[+].path=greet。&apos;@INDEX&apos; は 0 から数えた位置に追加します: supportedLanguages[+]@0=fr_FR。&apos;ENTRY@INDEX&apos; は項目を移動します: behaviors[greet]@0。すでにある項目の追加とない項目の削除は何も変えないので、コマンドは繰り返せます。すべてのファイルのすべてのフィールドを設定し、一つでも誤りがあれば何も設定しません。ファイルは正準形に書き直され、何も失われません。&apos;-&apos; は標準入力を読み、標準出力に書きます。名前に &apos;=&apos; を含むファイルは ./a=b.xml のようにフォルダーと共に指定します。</translation>
    </message>
    <message>
        <source>The package has no such entry.</source>
        <translation>パッケージにその項目はありません。</translation>
    </message>
    <message>
        <source>Show a manifest</source>
        <translation>マニフェストを表示する</translation>
    </message>
    <message>
        <source>Shows all fields of the manifest in FILE, and how much of it is translated. A missing text is replaced as in an application: by the text in the default language or, for names, by the uid or path. &apos;-&apos; reads standard input.</source>
        <translation>FILE のマニフェストのすべてのフィールドと、翻訳の進み具合を表示します。ないテキストは、アプリケーションと同じく既定の言語のテキストで、名前の場合はさらに uid またはパスで補います。&apos;-&apos; は標準入力から読みます。</translation>
    </message>
    <message>
        <source>users may request it</source>
        <translation>ユーザーが要求できる</translation>
    </message>
    <message>
        <source>Explain the rules of &apos;validate&apos;</source>
        <translation>&apos;validate&apos; の規則を説明する</translation>
    </message>
    <message>
        <source>[ID] [--format text|json]</source>
        <translation>[ID] [--format text|json]</translation>
    </message>
    <message>
        <source>Explains the purpose of the rule ID of &apos;validate&apos; and how to correct its findings; without an ID, lists all rules.</source>
        <translation>&apos;validate&apos; の規則 ID の目的と、指摘された点の直し方を説明します。ID がなければ、すべての規則を一覧表示します。</translation>
    </message>
    <message>
        <source>, notes: %1</source>
        <translation>、注記: %1</translation>
    </message>
    <message>
        <source>The version of a package has three fields, so it becomes %1.</source>
        <translation>パッケージのバージョンは三つの数字なので、%1 になります。</translation>
    </message>
    <message>
        <source>Exchanges the texts of packages with translators.</source>
        <translation>パッケージのテキストを翻訳者とやり取りします。</translation>
    </message>
    <message>
        <source>; &apos;%1 --help&apos; lists the commands.</source>
        <translation>。コマンドの一覧は &apos;%1 --help&apos; で表示できます。</translation>
    </message>
    <message>
        <source>Missing command; &apos;%1 --help&apos; lists the commands.</source>
        <translation>コマンドがありません。&apos;%1 --help&apos; でコマンドを確認できます。</translation>
    </message>
    <message>
        <source>The language to translate into.</source>
        <translation>翻訳先の言語。</translation>
    </message>
    <message>
        <source>The language to translate from; by default %1 or, if the package does not support it, its first language.</source>
        <translation>翻訳元の言語。省略すると %1、パッケージがその言語で動作しなければ最初の言語。</translation>
    </message>
    <message>
        <source>Write only untranslated texts.</source>
        <translation>翻訳されていないテキストだけを書き出します。</translation>
    </message>
    <message>
        <source>Missing option --language CODE.</source>
        <translation>オプション --language CODE がありません。</translation>
    </message>
    <message>
        <source>Export texts for translators</source>
        <translation>翻訳者のためにテキストを書き出す</translation>
    </message>
    <message>
        <source>FILE --language CODE [--source CODE] [--missing] [-o OUT]</source>
        <translation>FILE --language CODE [--source CODE] [--missing] [-o OUT]</translation>
    </message>
    <message>
        <source>Writes the texts of a manifest as XLIFF 1.2 for translation tools: names, descriptions, tags, trigger sentences and loading responses. &apos;texts import&apos; reads it back. &apos;-&apos; reads standard input.</source>
        <translation>マニフェストのテキスト(名前、説明、タグ、トリガー文、読み込み中の応答)を、翻訳ツールが読める XLIFF 1.2 として書き出します。&apos;texts import&apos; で読み戻します。&apos;-&apos; は標準入力を読みます。</translation>
    </message>
    <message>
        <source>Also import texts whose source has changed since the export.</source>
        <translation>書き出しのあとで原文が変わったテキストも取り込みます。</translation>
    </message>
    <message>
        <source>Texts: %1 imported, %2 unchanged, %3 untranslated, %4 skipped.</source>
        <translation>テキスト: 取り込み %1、変更なし %2、未翻訳 %3、スキップ %4。</translation>
    </message>
    <message>
        <source>Import texts from translators</source>
        <translation>翻訳者からのテキストを取り込む</translation>
    </message>
    <message>
        <source>FILE XLIFF... [--dry-run] [--force]</source>
        <translation>FILE XLIFF... [--dry-run] [--force]</translation>
    </message>
    <message>
        <source>Imports translations from XLIFF files written by &apos;texts export&apos; into the manifest in FILE. Lists grow to the translator&apos;s length, and a new language becomes a description language. Texts whose behavior was removed or whose source has changed are reported and skipped. If a text is a malformed speech script, nothing is imported. The exit status is 1 if a text is skipped. &apos;-&apos; reads standard input; as FILE, it also writes to standard output.</source>
        <translation>&apos;texts export&apos; が書き出した XLIFF ファイルの翻訳を、FILE のマニフェストに取り込みます。リストは翻訳者の長さまで伸び、新しい言語は説明の言語になります。ビヘイビアがなくなったテキストと原文が変わったテキストは、報告してスキップします。テキストが正しくない音声スクリプトであれば、何も取り込みません。スキップしたテキストがあると終了ステータスは 1 です。&apos;-&apos; は標準入力を読みます。FILE であれば標準出力に書きます。</translation>
    </message>
    <message>
        <source>behavior</source>
        <translation>ビヘイビア</translation>
    </message>
    <message>
        <source>Show how much of packages is translated</source>
        <translation>翻訳の進み具合を表示する</translation>
    </message>
    <message>
        <source>FILE... [--format text|json]</source>
        <translation>FILE... [--format text|json]</translation>
    </message>
    <message>
        <source>Counts translated and required texts by language and by behavior. A list counts as one text. &apos;-&apos; reads standard input.</source>
        <translation>必要なテキストのうち翻訳されたものを、言語別とビヘイビア別に数えます。リストは 1 つと数えます。&apos;-&apos; は標準入力を読みます。</translation>
    </message>
    <message>
        <source>The baseline is not valid JSON: %1.</source>
        <translation>基準ファイルは有効な JSON ではありません: %1。</translation>
    </message>
    <message>
        <source>The file is not a baseline of format 1, which --write-baseline writes.</source>
        <translation>このファイルは、--write-baseline が書き出す形式 1 の基準ファイルではありません。</translation>
    </message>
    <message>
        <source>Unknown setting &apos;%1&apos;%2</source>
        <translation>設定 &apos;%1&apos; はありません%2</translation>
    </message>
    <message>
        <source>; it is one of %1.</source>
        <translation>。次のいずれかです: %1。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must be a list of tables, [[%1]].</source>
        <translation>&apos;%1&apos; はテーブルのリスト [[%1]] でなければなりません。</translation>
    </message>
    <message>
        <source>The override has no &apos;path&apos;.</source>
        <translation>この override には &apos;path&apos; がありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must be a table.</source>
        <translation>&apos;%1&apos; はテーブルでなければなりません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be &quot;%2&quot;%3</source>
        <translation>&apos;%1&apos; を &quot;%2&quot; にすることはできません%3</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must be a string in quotes.</source>
        <translation>&apos;%1&apos; は引用符で囲んだ文字列でなければなりません。</translation>
    </message>
    <message>
        <source>The configuration is not valid TOML: %1.</source>
        <translation>設定ファイルは有効な TOML ではありません: %1。</translation>
    </message>
    <message>
        <source>The folder contains no manifest.xml.</source>
        <translation>このフォルダーに manifest.xml はありません。</translation>
    </message>
    <message>
        <source>The baseline lists &apos;%1&apos;, which is no longer found here.</source>
        <translation>基準ファイルはここに &apos;%1&apos; を挙げていますが、もう検出されません。</translation>
    </message>
    <message>
        <source>A baseline lists known findings, which are not reported. An outdated entry would hide the same finding if it came back.</source>
        <translation>基準ファイルは既知の検出結果を挙げ、それらは報告されません。検出結果がなくなった項目は、同じ問題が再び現れたときにそれを隠してしまいます。</translation>
    </message>
    <message>
        <source>Update the baseline with --write-baseline.</source>
        <translation>--write-baseline で基準ファイルを書き直してください。</translation>
    </message>
    <message>
        <source>The comment ignores &apos;%1&apos;, which is not found here.</source>
        <translation>コメントは &apos;%1&apos; を無視しますが、ここでは検出されません。</translation>
    </message>
    <message>
        <source>A comment &apos;zel-package: ignore&apos; applies to the element after it. If its rules find nothing, it would hide later findings.</source>
        <translation>コメント &apos;zel-package: ignore&apos; は、それに続く要素に適用されます。その規則が何も検出しない場合、後で生じる問題を隠してしまいます。</translation>
    </message>
    <message>
        <source>Remove the rule from the comment, or the comment.</source>
        <translation>コメントからその規則を取り除くか、コメントを削除してください。</translation>
    </message>
    <message>
        <source>A comment &apos;zel-package: ignore&apos; names a rule that does not exist, so it has no effect.</source>
        <translation>コメント &apos;zel-package: ignore&apos; が存在しない規則を挙げているため、効果がありません。</translation>
    </message>
    <message>
        <source>Use the id of a rule; &apos;zel-package explain&apos; lists them.</source>
        <translation>規則の ID を書いてください。&apos;zel-package explain&apos; で一覧できます。</translation>
    </message>
    <message>
        <source>Correct the file at the reported line and column, then check it again.</source>
        <translation>示された行と列でファイルを修正し、もう一度検査してください。</translation>
    </message>
    <message>
        <source>, to be fixed: %1</source>
        <translation>、修正予定: %1</translation>
    </message>
    <message>
        <source>, fixed: %1</source>
        <translation>、修正済み: %1</translation>
    </message>
    <message>
        <source>Check manifests, and fix them</source>
        <translation>マニフェストを検査し、修正する</translation>
    </message>
    <message>
        <source>FILE|FOLDER... [--format text|json|sarif|github] [--fail-on error|warning|note] [--ignore ID[,ID]...]... [--fix] [--unsafe-fixes] [--diff] [--config FILE] [--baseline FILE] [--write-baseline FILE] [--stdin-name NAME] [--quiet] [--color auto|always|never] [--explain]</source>
        <translation>FILE|FOLDER... [--format text|json|sarif|github] [--fail-on error|warning|note] [--ignore ID[,ID]...]... [--fix] [--unsafe-fixes] [--diff] [--config FILE] [--baseline FILE] [--write-baseline FILE] [--stdin-name NAME] [--quiet] [--color auto|always|never] [--explain]</translation>
    </message>
    <message>
        <source>Prints the findings in each manifest by line, as FILE:LINE:COLUMN: error: text [id]; a missing field is reported at the element that should contain it. A FOLDER means every manifest.xml in or below it. &apos;zel-package explain ID&apos; explains a rule. &apos;-&apos; reads standard input; with --fix, the manifest goes to standard output and the findings to standard error.</source>
        <translation>各マニフェストの検出結果を行順に FILE:LINE:COLUMN: error: 本文 [id] の形で表示します。欠けているフィールドの位置は、それを含むべき要素の位置です。FOLDER は、その中とその下にあるすべての manifest.xml を意味します。&apos;zel-package explain ID&apos; が規則を説明します。&apos;-&apos; は標準入力を読み、--fix を付けるとマニフェストは標準出力へ、検出結果は標準エラーへ出力されます。</translation>
    </message>
    <message>
        <source>&apos;--%1&apos; cannot be &apos;%2&apos;%3</source>
        <translation>&apos;--%1&apos; を &apos;%2&apos; にすることはできません%3</translation>
    </message>
    <message>
        <source>The output format: text (the default), json, sarif or github.</source>
        <translation>出力の形式: text (既定)、json、sarif または github。</translation>
    </message>
    <message>
        <source>The lowest severity that sets the exit status to 1: error (the default), warning or note.</source>
        <translation>終了ステータスを 1 にする最低の重大度: error (既定)、warning または note。</translation>
    </message>
    <message>
        <source>Do not report findings of these rules; separate IDs by commas, or repeat the option.</source>
        <translation>これらの規則の検出結果を省きます。ID はコンマで区切り、このオプションは複数回指定できます。</translation>
    </message>
    <message>
        <source>Apply the safe fixes, and report the remaining findings.</source>
        <translation>安全な修正を行い、残った検出結果を報告します。</translation>
    </message>
    <message>
        <source>Also apply fixes that may change the meaning.</source>
        <translation>意味を変えうる修正も行います。</translation>
    </message>
    <message>
        <source>Write nothing; print the fixes as a unified diff.</source>
        <translation>何も書き込まず、修正を unified diff として表示します。</translation>
    </message>
    <message>
        <source>Use this configuration instead of the nearest .zel-package.toml.</source>
        <translation>最も近い .zel-package.toml の代わりに、この設定ファイルを使います。</translation>
    </message>
    <message>
        <source>Do not report the findings listed in this file.</source>
        <translation>このファイルが挙げる検出結果を省きます。</translation>
    </message>
    <message>
        <source>Write the findings to this file instead.</source>
        <translation>検出結果を報告せず、このファイルに書き出します。</translation>
    </message>
    <message>
        <source>The name of the manifest from standard input.</source>
        <translation>標準入力から読むマニフェストの名前。</translation>
    </message>
    <message>
        <source>Print only findings that set the exit status to 1, and no summary.</source>
        <translation>終了ステータスを 1 にする検出結果だけを表示し、要約は表示しません。</translation>
    </message>
    <message>
        <source>Whether to use color: auto (the default, on a terminal), always or never.</source>
        <translation>色を使うかどうか: auto (既定、端末で)、always または never。</translation>
    </message>
    <message>
        <source>Explain each rule with findings at the end.</source>
        <translation>最後に、検出結果のある各規則を説明します。</translation>
    </message>
    <message>
        <source>&apos;--%1&apos; requires standard input, &apos;-&apos;, as a FILE.</source>
        <translation>&apos;--%1&apos; には、FILE として標準入力の &apos;-&apos; が必要です。</translation>
    </message>
    <message>
        <source>Known findings: %1</source>
        <translation>既知の検出結果: %1</translation>
    </message>
    <message>
        <source>Only comments, unknown content or the notation of values differ.</source>
        <translation>コメント、未知の内容、または値の表記だけが異なります。</translation>
    </message>
    <message>
        <source>Compare two manifests by field</source>
        <translation>二つのマニフェストをフィールドごとに比べる</translation>
    </message>
    <message>
        <source>A B [--format text|json]</source>
        <translation>A B [--format text|json]</translation>
    </message>
    <message>
        <source>Prints the changes from manifest A to manifest B, one per line. With --format json, prints them as edits for &apos;set A --edits&apos;. The exit status is 0 if the manifests are equal, 1 if they differ, and 2 after an error. One of them may be &apos;-&apos; for standard input.</source>
        <translation>A のマニフェストを B のものにする変更を 1 行に一つずつ表示します。--format json では、&apos;set A --edits&apos; が適用する編集として表示します。終了ステータスは、等しければ 0、異なれば 1、エラーなら 2 です。一方に &apos;-&apos; を指定すると標準入力から読みます。</translation>
    </message>
    <message>
        <source>Write to this file instead of OURS; &apos;-&apos; is standard output.</source>
        <translation>OURS ではなくこのファイルに書く。&apos;-&apos; は標準出力。</translation>
    </message>
    <message>
        <source>The file contains conflict markers of git; resolve these conflicts first.</source>
        <translation>git の競合マーカーがあります。先にその競合を解決してください。</translation>
    </message>
    <message>
        <source>Removed by ours, %1 in theirs.</source>
        <translation>OURS では削除、THEIRS では%1。</translation>
    </message>
    <message>
        <source>%1 in ours, removed by theirs.</source>
        <translation>OURS では%1、THEIRS では削除。</translation>
    </message>
    <message>
        <source>%1 in ours, %2 in theirs.</source>
        <translation>OURS では%1、THEIRS では%2。</translation>
    </message>
    <message>
        <source>Merge the changes of two manifests by field</source>
        <translation>二つのマニフェストの変更をフィールドごとにマージする</translation>
    </message>
    <message>
        <source>Merges the changes from BASE to THEIRS into OURS, field by field. If both sides changed a field differently, the value in OURS is kept, and a comment before the field shows both values; &apos;validate&apos; reports it until it is removed. The exit status is 0 after a merge without conflicts, 1 after a merge with conflicts, and 2 after an error, which leaves OURS unchanged. An empty file is a manifest without fields. One of the files may be &apos;-&apos; for standard input.</source>
        <translation>BASE から THEIRS への変更を、フィールドごとに OURS にマージします。両側が同じフィールドを異なる値に変更した場合は OURS を残し、フィールドの前のコメントに両方の値を書きます。&apos;validate&apos; はそのコメントが削除されるまで報告します。終了ステータスは、競合なしでマージすれば 0、競合があれば 1、エラーなら 2 で、エラーの場合 OURS は変わりません。空のファイルはフィールドのないマニフェストです。いずれかに &apos;-&apos; を指定すると標準入力から読みます。</translation>
    </message>
    <message>
        <source>The file is not well-formed XML in UTF-8, or has content that is not allowed at this position. Nothing else in it is checked, and the exit status is 2.</source>
        <translation>ファイルが整形式の UTF-8 の XML でないか、その場所に置けない内容があります。ほかは検査されず、終了コードは 2 です。</translation>
    </message>
    <message>
        <source>  For example:</source>
        <translation>  例:</translation>
    </message>
    <message>
        <source>Use PATH for the manifest in messages: git merges copies, and passes the path as %P.</source>
        <translation>メッセージの中でマニフェストを PATH と呼びます。git はコピーをマージし、パスを %P で渡します。</translation>
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
        <translation>基準ファイルは &apos;%1&apos; の検出結果を挙げていますが、このファイルはもう存在しません。</translation>
    </message>
    <message>
        <source>&apos;--%1&apos; requires a file name.</source>
        <translation>&apos;--%1&apos; にはファイル名が必要です。</translation>
    </message>
    <message>
        <source>The name of a file is empty.</source>
        <translation>ファイル名が空です。</translation>
    </message>
</context>
</TS>
