<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>zel-package</name>
    <message>
        <source>Standard output cannot be written: %1.</source>
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
        <source>The package is only described in this language.</source>
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
        <source>Explain what &apos;validate&apos; finds</source>
        <translation>&apos;validate&apos; の指摘を説明する</translation>
    </message>
    <message>
        <source>[ID]</source>
        <translation>[ID]</translation>
    </message>
    <message>
        <source>Tells what the rule ID of &apos;validate&apos; is for and how to mend what it finds; without an ID, lists all rules.</source>
        <translation>&apos;validate&apos; の規則 ID の目的と、指摘された点の直し方を示します。ID がない場合は、すべての規則を一覧にします。</translation>
    </message>
    <message>
        <source>Standard input.</source>
        <translation>標準入力。</translation>
    </message>
    <message>
        <source>en-US</source>
        <extracomment>The language of this translation, as RFC 5646 writes it.</extracomment>
        <translation>ja</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>%1 列目</translation>
    </message>
    <message>
        <source>Write no manifest; print the names of the files that are not in the canonical form.</source>
        <translation>マニフェストを書き込まず、正規形でないファイルの名前を表示する。</translation>
    </message>
    <message>
        <source>Rewrite manifests in the canonical form</source>
        <translation>マニフェストを正規形に書き直す</translation>
    </message>
    <message>
        <source>FILE... [--check]</source>
        <translation>ファイル... [--check]</translation>
    </message>
    <message>
        <source>Rewrites each FILE in the canonical form, with nothing lost: comments, and elements and attributes that are not known, stay. A file that is in that form already is left alone. &apos;-&apos; takes standard input and writes to standard output.</source>
        <translation>各ファイルを正規形に書き直します。コメントや未知の要素と属性を含め、何も失われません。すでに正規形のファイルには触れません。&apos;-&apos; は標準入力を読み、標準出力に書き込みます。</translation>
    </message>
    <message>
        <source>The language &apos;%1&apos; is not a known one.</source>
        <translation>言語 &apos;%1&apos; は既知の言語ではありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a language code; &apos;zel-package languages&apos; lists those that are known.</source>
        <translation>&apos;%1&apos; は言語コードではありません。既知のコードは &apos;zel-package languages&apos; で一覧できます。</translation>
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
        <source>Lists the languages that are known: the code that manifests use, the name, the code of the speech engine where it has a voice, and the name in the language itself. A manifest may use others too.</source>
        <translation>既知の言語を一覧にします。マニフェストで使うコード、名前、音声がある場合は音声エンジンのコード、その言語での名前を示します。マニフェストではこれ以外の言語も使えます。</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>ファイルを開けません: %1</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>ファイルを読み込めません: %1</translation>
    </message>
    <message>
        <source>The package&apos;s identifier: at most 50 of a-z, 0-9, &apos;_&apos; and &apos;-&apos;, not digits alone.</source>
        <translation>パッケージの識別子。a-z、0-9、&apos;_&apos;、&apos;-&apos; からなる 50 文字以内で、数字だけのものは使えません。</translation>
    </message>
    <message>
        <source>The package&apos;s name, in the first language.</source>
        <translation>最初の言語でのパッケージの名前。</translation>
    </message>
    <message>
        <source>A language that the package runs in, for example fr_FR; may be given several times. %1 when none is given.</source>
        <translation>パッケージが対応する言語。例: fr_FR。複数回指定できます。指定がない場合は %1。</translation>
    </message>
    <message>
        <source>The file cannot be made: %1.</source>
        <translation>ファイルを作成できません: %1</translation>
    </message>
    <message>
        <source>The file cannot be written: %1.</source>
        <translation>ファイルに書き込めません: %1</translation>
    </message>
    <message>
        <source>%1 &apos;zel-package explain uid-invalid&apos; says what a UID is.</source>
        <translation>%1 UID については &apos;zel-package explain uid-invalid&apos; を参照してください。</translation>
    </message>
    <message>
        <source>A manifest of version %1; what it still needs: %2.</source>
        <translation>バージョン %1 のマニフェスト。まだ必要なもの: %2</translation>
    </message>
    <message>
        <source>A package needs a --uid.</source>
        <translation>パッケージには --uid が必要です。</translation>
    </message>
    <message>
        <source>Make a new manifest</source>
        <translation>新しいマニフェストを作成する</translation>
    </message>
    <message>
        <source>FILE --uid UID [--name TEXT] [--language CODE]...</source>
        <translation>ファイル --uid UID [--name テキスト] [--language コード]...</translation>
    </message>
    <message>
        <source>Makes FILE, the manifest of a new package of version 1.0.0. A file that exists is never overwritten. &apos;-&apos; writes to standard output.</source>
        <translation>バージョン 1.0.0 の新しいパッケージのマニフェストをファイルに作成します。既存のファイルを上書きすることはありません。&apos;-&apos; は標準出力に書き込みます。</translation>
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
        <source>Show this help; after a command, that command&apos;s.</source>
        <translation>このヘルプを表示する。コマンドの後では、そのコマンドのヘルプを表示する。</translation>
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
        <source>There is no option &apos;%1&apos;%2</source>
        <translation>オプション &apos;%1&apos; はありません%2</translation>
    </message>
    <message>
        <source>; &apos;%1 --help&apos; lists the options.</source>
        <translation>。オプションの一覧は &apos;%1 --help&apos; で表示できます。</translation>
    </message>
    <message>
        <source>An argument is missing: %1</source>
        <translation>引数が足りません: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is one argument too many: %2</source>
        <translation>引数 &apos;%1&apos; は余分です: %2</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;%2</source>
        <translation>コマンド &apos;%1&apos; はありません%2</translation>
    </message>
    <message>
        <source>; &apos;zel-package --help&apos; lists the commands.</source>
        <translation>。コマンドの一覧は &apos;zel-package --help&apos; で表示できます。</translation>
    </message>
    <message>
        <source>A command is missing; &apos;zel-package --help&apos; lists the commands.</source>
        <translation>コマンドがありません。コマンドの一覧は &apos;zel-package --help&apos; で表示できます。</translation>
    </message>
    <message>
        <source>The manifest is malformed.</source>
        <translation>マニフェストの形式が正しくありません。</translation>
    </message>
    <message>
        <source>The file is no well-formed XML in UTF-8, or it holds what a manifest cannot hold at that place. Nothing else in it is checked. Whatever is ignored, the exit status is 2.</source>
        <translation>ファイルが UTF-8 の整形式 XML でないか、マニフェストがその場所に持てない内容を含んでいます。ファイルのほかの部分は検査されません。何を無視しても、終了ステータスは 2 です。</translation>
    </message>
    <message>
        <source>Mend the file at the line and column that are given, then check it again.</source>
        <translation>示された行と列でファイルを直してから、もう一度検査してください。</translation>
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
        <source>There is no rule &apos;%1&apos;%2</source>
        <translation>規則 &apos;%1&apos; はありません%2</translation>
    </message>
    <message>
        <source>Show every text in this language; &apos;!&apos; marks those that are missing.</source>
        <translation>すべてのテキストをこの言語で表示する。&apos;!&apos; は欠けているものを示します。</translation>
    </message>
    <message>
        <source>The form of the output: text or json.</source>
        <translation>出力の形式: text または json。</translation>
    </message>
    <message>
        <source>There is no format &apos;%1&apos;%2</source>
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
        <source>Show what a manifest says</source>
        <translation>マニフェストの内容を表示する</translation>
    </message>
    <message>
        <source>FILE [--language CODE] [--format text|json]</source>
        <translation>ファイル [--language コード] [--format text|json]</translation>
    </message>
    <message>
        <source>Shows all that the manifest in FILE says, and how far it is translated. A missing text is replaced as an application does it: by the one in the default language, then, for a name, by the uid or the path. &apos;-&apos; reads standard input.</source>
        <translation>ファイルのマニフェストの内容すべてと、翻訳の進み具合を表示します。欠けているテキストは、アプリケーションと同じように、既定の言語のもの、名前の場合はさらに uid またはパスで補われます。&apos;-&apos; は標準入力を読みます。</translation>
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
        <source>users may ask for it</source>
        <translation>ユーザーが呼び出せます</translation>
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
        <source>The form of the output: text, json or sarif.</source>
        <translation>出力の形式: text、json または sarif。</translation>
    </message>
    <message>
        <source>The least severity that makes the exit status 1: error or warning; error when none is given.</source>
        <translation>終了ステータスを 1 にする最低の重大度: error または warning。指定がない場合は error。</translation>
    </message>
    <message>
        <source>Leave out what these rules find; IDs are joined by commas, and the option may be given several times.</source>
        <translation>これらの規則の指摘を除く。ID はコンマで区切り、オプションは複数回指定できます。</translation>
    </message>
    <message>
        <source>Explain, at the end, each rule that found something.</source>
        <translation>指摘のあった各規則を最後に説明する。</translation>
    </message>
    <message>
        <source>There is no severity &apos;%1&apos;%2</source>
        <translation>重大度 &apos;%1&apos; はありません%2</translation>
    </message>
    <message>
        <source>; it is either error or warning.</source>
        <translation>。error または warning を指定してください。</translation>
    </message>
    <message>
        <source>; it is text, json or sarif.</source>
        <translation>。text、json または sarif を指定してください。</translation>
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
        <source>Tell what is wrong with manifests</source>
        <translation>マニフェストの問題を指摘する</translation>
    </message>
    <message>
        <source>FILE... [--format text|json|sarif] [--fail-on error|warning] [--ignore ID[,ID]...]... [--explain]</source>
        <translation>ファイル... [--format text|json|sarif] [--fail-on error|warning] [--ignore ID[,ID]...]... [--explain]</translation>
    </message>
    <message>
        <source>Prints what is wrong with each manifest, as FILE:LINE: error: text (field) [id]; the line is that of the field or, where it is missing, of what should hold it. &apos;zel-package explain ID&apos; tells more. &apos;-&apos; reads standard input.</source>
        <translation>各マニフェストの問題を「ファイル:行: error: テキスト (フィールド) [id]」の形で表示します。行は、そのフィールドの行、欠けている場合はそれを含むはずの要素の行です。詳しくは &apos;zel-package explain ID&apos; を参照してください。&apos;-&apos; は標準入力を読みます。</translation>
    </message>
    <message>
        <source>It cannot be empty.</source>
        <translation>空にはできません。</translation>
    </message>
    <message>
        <source>A package has a version.</source>
        <translation>パッケージにはバージョンが必要です。</translation>
    </message>
    <message>
        <source>Makes, shows, checks, edits and rewrites the manifests of robot application packages.</source>
        <translation>ロボットアプリケーションパッケージのマニフェストを作成、表示、検査、編集、書き直しします。</translation>
    </message>
    <message>
        <source>Write nothing; print what would change, as a unified diff.</source>
        <translation>何も書き込まず、変更点を unified diff 形式で表示する。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form FIELD=VALUE, as in author=Ines or names[en_US]=Tea.</source>
        <translation>&apos;%1&apos; は フィールド=値 の形ではありません。例: author=Ines、names[en_US]=Tea。</translation>
    </message>
    <message>
        <source>Write to this file; to standard output when none is given, or &apos;-&apos;.</source>
        <translation>このファイルに書き込む。指定がないか &apos;-&apos; の場合は標準出力。</translation>
    </message>
    <message>
        <source>%1 stays as it is: %2</source>
        <translation>%1 はそのままです: %2</translation>
    </message>
    <message>
        <source>This has been published before; the scripts that it keeps beside its texts are dropped.</source>
        <translation>すでに公開済みです。テキストと並べて保存されていたスクリプトは破棄されます。</translation>
    </message>
    <message>
        <source>Make the manifest of a package that is to be published</source>
        <translation>公開するパッケージのマニフェストを作る</translation>
    </message>
    <message>
        <source>FILE [-o OUT]</source>
        <translation>ファイル [-o 出力先]</translation>
    </message>
    <message>
        <source>Writes the manifest in FILE as it is published: without texts in languages that the package no longer offers, and with plain text in place of speech scripts, which are kept in a private-use variant of their language. A text that is a malformed script stays as it is, and is told of. &apos;-&apos; reads standard input.</source>
        <translation>ファイルのマニフェストを公開用の形で書き出します。パッケージが提供しなくなった言語のテキストを除き、発話スクリプトをプレーンテキストに置き換えます。スクリプトは、その言語の私用の変種に残されます。形式の正しくないスクリプトであるテキストはそのまま残り、通知されます。&apos;-&apos; は標準入力を読みます。</translation>
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
        <source>Lists the robots that a package may require, families and models, and what the model of a robot requirement is for each; it is empty for any robot. A manifest may require others too.</source>
        <translation>パッケージが要件にできるロボットをファミリーとモデルで一覧にし、それぞれについてロボット要件のモデルの値を示します。すべてのロボットの場合は空です。マニフェストではこれ以外のロボットも要件にできます。</translation>
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
        <source>There is none, so nothing is removed.</source>
        <translation>ないので、何も削除しません。</translation>
    </message>
    <message>
        <source>This is an entry: an empty VALUE removes it; a field of it is set as in &apos;%1.FIELD=VALUE&apos;.</source>
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
        <source>The FILE to edit is missing.</source>
        <translation>編集する FILE がありません。</translation>
    </message>
    <message>
        <source>&apos;-&apos; can be given once only.</source>
        <translation>&apos;-&apos; は一度しか指定できません。</translation>
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
        <source>Sets fields, named as in &apos;show --format json&apos;: author=Ines, names[fr_FR]=Goûter, robotRequirements[0].maxBodyVersion=3.1, behaviors[greet].tags[en_US][0]=hello. An empty VALUE clears a text and removes an entry or an item: behaviors[greet]=. The key [+] adds one to a list: supportedLanguages[+]=fr_FR, behaviors[+].path=greet; &apos;@INDEX&apos; adds it at an index, from 0 on: supportedLanguages[+]@0=fr_FR. &apos;ENTRY@INDEX&apos; moves an entry: behaviors[greet]@0. Adding what is there and removing what is not changes nothing, so that a command can be repeated. Either all fields of all files are set or, where one is wrong, none. Files are rewritten in the canonical form with nothing lost. &apos;-&apos; takes standard input and writes to standard output; a file whose name has a &apos;=&apos; is given with its folder, as in ./a=b.xml.</source>
        <translation>&apos;show --format json&apos; と同じ名前のフィールドを設定します: author=Ines、names[fr_FR]=Goûter、robotRequirements[0].maxBodyVersion=3.1、behaviors[greet].tags[en_US][0]=hello。空の VALUE はテキストを消し、項目を削除します: behaviors[greet]=。キー [+] はリストに追加します: supportedLanguages[+]=fr_FR、behaviors[+].path=greet。&apos;@INDEX&apos; は 0 から数えた位置に追加します: supportedLanguages[+]@0=fr_FR。&apos;ENTRY@INDEX&apos; は項目を移動します: behaviors[greet]@0。あるものの追加とないものの削除は何も変えないので、コマンドは繰り返せます。すべてのファイルのすべてのフィールドを設定し、一つでも誤りがあれば何も設定しません。ファイルは正準形に書き直され、何も失われません。&apos;-&apos; は標準入力を読み、標準出力に書きます。名前に &apos;=&apos; を含むファイルは ./a=b.xml のようにフォルダーと共に指定します。</translation>
    </message>
    <message>
        <source>There is none.</source>
        <translation>ありません。</translation>
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
        <source>First make the edits in this JSON file, which schema/edits.schema.json describes; &apos;-&apos; is standard input.</source>
        <translation>最初にこの JSON ファイルの編集を行います。形式は schema/edits.schema.json にあります。&apos;-&apos; は標準入力です。</translation>
    </message>
</context>
</TS>
