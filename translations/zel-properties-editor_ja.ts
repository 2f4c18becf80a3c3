<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Editor::BehaviorDetails</name>
    <message>
        <source>A behavior needs a path.</source>
        <translation>ビヘイビアにはパスが必要です。</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Interactive: it reacts to people</source>
        <translation>インタラクティブ: 人に反応する</translation>
    </message>
    <message>
        <source>Solitary: the robot runs it on its own</source>
        <translation>ソリタリー: ロボットが自ら実行する</translation>
    </message>
    <message>
        <source>Language of the texts</source>
        <translation>テキストの言語</translation>
    </message>
    <message>
        <source>Texts &amp;in:</source>
        <translation>テキストの言語(&amp;I):</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Trigger sentences</source>
        <translation>トリガー文</translation>
    </message>
    <message>
        <source>A sentence that starts the behavior</source>
        <translation>ビヘイビアを開始する文</translation>
    </message>
    <message>
        <source>Responses</source>
        <translation>応答</translation>
    </message>
    <message>
        <source>What the robot says while it loads</source>
        <translation>読み込み中にロボットが話す文</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>A new tag</source>
        <translation>新しいタグ</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>条件</translation>
    </message>
    <message>
        <source>A new condition for this purpose</source>
        <translation>この用途の新しい条件</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>権限</translation>
    </message>
    <message>
        <source>A new permission</source>
        <translation>新しい権限</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>What people say to start the behavior. Type a sentence below.</source>
        <translation>ビヘイビアを始めるために人が言う文です。下に文を入力してください。</translation>
    </message>
    <message>
        <source>What the robot says until the behavior starts. Type a sentence below.</source>
        <translation>ビヘイビアが始まるまでロボットが言う文です。下に文を入力してください。</translation>
    </message>
    <message>
        <source>Words that group behaviors. Type a tag below.</source>
        <translation>ビヘイビアを分類する言葉です。下にタグを入力してください。</translation>
    </message>
    <message>
        <source>What has to hold for the behavior to run. Type a condition below.</source>
        <translation>ビヘイビアの実行に必要な条件です。下に条件を入力してください。</translation>
    </message>
    <message>
        <source>What the behavior uses of the robot. Type a permission below.</source>
        <translation>ビヘイビアが使うロボットの機能です。下に権限を入力してください。</translation>
    </message>
    <message>
        <source>A user may as&amp;k for it</source>
        <translation>ユーザーが呼び出せる(&amp;K)</translation>
    </message>
    <message>
        <source>Pa&amp;th:</source>
        <translation>パス(&amp;T):</translation>
    </message>
    <message>
        <source>Nat&amp;ure:</source>
        <translation>種別(&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>説明(&amp;D):</translation>
    </message>
    <message>
        <source>Purp&amp;ose:</source>
        <translation>用途(&amp;O):</translation>
    </message>
</context>
<context>
    <name>Editor::BehaviorsModel</name>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
</context>
<context>
    <name>Editor::BehaviorsPage</name>
    <message>
        <source>&amp;Behaviors</source>
        <translation>ビヘイビア(&amp;B)</translation>
    </message>
    <message>
        <source>Find a behavior</source>
        <translation>ビヘイビアを検索</translation>
    </message>
    <message>
        <source>Behaviors</source>
        <translation>ビヘイビア</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>追加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>A behavior is something that the robot does. “Add” adds one; the search above may hide some.</source>
        <translation>ビヘイビアはロボットの動作です。「追加」で追加します。上の検索で隠れている場合もあります。</translation>
    </message>
</context>
<context>
    <name>Editor::ChangeList</name>
    <message>
        <source>%1 removed</source>
        <translation>%1を削除</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1を追加</translation>
    </message>
</context>
<context>
    <name>Editor::DialogsModel</name>
    <message>
        <source>Topic</source>
        <translation>トピック</translation>
    </message>
</context>
<context>
    <name>Editor::DialogsPage</name>
    <message>
        <source>&amp;Dialogs</source>
        <translation>ダイアログ(&amp;D)</translation>
    </message>
    <message>
        <source>Dialogs</source>
        <translation>ダイアログ</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>追加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Topic:</source>
        <translation>トピック(&amp;T):</translation>
    </message>
    <message>
        <source>A dialog needs a topic name.</source>
        <translation>ダイアログにはトピック名が必要です。</translation>
    </message>
    <message>
        <source>Topic files</source>
        <translation>トピックファイル</translation>
    </message>
    <message>
        <source>A dialog is a topic that the robot can talk about, with a file for each language. “Add” adds one.</source>
        <translation>ダイアログはロボットが話せる話題で、言語ごとにファイルがあります。「追加」で追加します。</translation>
    </message>
    <message>
        <source>Type vers&amp;ion:</source>
        <translation>種別バージョン(&amp;I):</translation>
    </message>
    <message>
        <source>Remove Fi&amp;le</source>
        <translation>ファイルを削除(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Choose File…</source>
        <translation>ファイルを選択(&amp;C)…</translation>
    </message>
    <message>
        <source>Choose a Topic File</source>
        <translation>トピックファイルを選択</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
</context>
<context>
    <name>Editor::Document</name>
    <message>
        <source>The icon cannot be converted to PNG.</source>
        <translation>アイコンを PNG に変換できません。</translation>
    </message>
    <message>
        <source>Merge with the file</source>
        <translation>ファイルとマージ</translation>
    </message>
</context>
<context>
    <name>Editor::Exchange</name>
    <message>
        <source>XLIFF files (*.xlf *.xliff);;All files (*)</source>
        <translation>XLIFF ファイル (*.xlf *.xliff);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Export Texts</source>
        <translation>テキストのエクスポート</translation>
    </message>
    <message>
        <source>Import Texts</source>
        <translation>テキストのインポート</translation>
    </message>
    <message>
        <source>Texts whose source has changed since the export: %1</source>
        <translation>エクスポート後に原文が変わったテキスト: %1</translation>
    </message>
    <message>
        <source>Import their translations too?</source>
        <translation>その翻訳もインポートしますか?</translation>
    </message>
    <message>
        <source>Line %1, %2: %3</source>
        <translation>%1 行目、%2: %3</translation>
    </message>
    <message>
        <source>Texts imported: %1. Unchanged: %2. Not translated: %3. Skipped: %4.</source>
        <translation>インポートしたテキスト: %1。変更なし: %2。未翻訳: %3。スキップ: %4。</translation>
    </message>
    <message>
        <source>Nothing was imported: some texts are malformed speech scripts.</source>
        <translation>何もインポートされませんでした。不正な音声スクリプトのテキストがあります。</translation>
    </message>
    <message>
        <source>Line %1, column %2: %3</source>
        <translation>%1 行 %2 列: %3</translation>
    </message>
    <message>
        <source>Fill missing texts</source>
        <translation>未翻訳のテキストを埋める</translation>
    </message>
    <message>
        <source>Filled from the source: %1.</source>
        <translation>原文から埋めたテキスト: %1。</translation>
    </message>
</context>
<context>
    <name>Editor::FileActions</name>
    <message>
        <source>Empty Package</source>
        <translation>空のパッケージ</translation>
    </message>
    <message>
        <source>Behavior Started by a Sentence</source>
        <translation>文で開始するビヘイビア</translation>
    </message>
    <message>
        <source>Service in the Background</source>
        <translation>バックグラウンドのサービス</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新規(&amp;N)</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近使ったファイル(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>名前を付けて保存(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Publish…</source>
        <translation>公開(&amp;P)…</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>再読み込み(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>New package from a template</source>
        <translation>テンプレートから新規パッケージ</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>保存されていない変更</translation>
    </message>
    <message>
        <source>The package has changes that are not saved.</source>
        <translation>パッケージに保存されていない変更があります。</translation>
    </message>
    <message>
        <source>They are lost unless you save them.</source>
        <translation>保存しないと変更は失われます。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Open a Manifest</source>
        <translation>マニフェストを開く</translation>
    </message>
    <message>
        <source>Manifests (*.xml);;All files (*)</source>
        <translation>マニフェスト (*.xml);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Save the Manifest</source>
        <translation>マニフェストを保存</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Another program has changed the file since it was opened.</source>
        <translation>ファイルは開いた後に別のプログラムによって変更されています。</translation>
    </message>
    <message>
        <source>Saving replaces what the other program has written.</source>
        <translation>保存すると、別のプログラムが書き込んだ内容は置き換えられます。</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Another program has changed the file.</source>
        <translation>別のプログラムがファイルを変更しました。</translation>
    </message>
    <message>
        <source>Keep This Version</source>
        <translation>現在の内容を保持</translation>
    </message>
    <message>
        <source>The file no longer exists.</source>
        <translation>ファイルがなくなりました。</translation>
    </message>
    <message>
        <source>Save It Again</source>
        <translation>もう一度保存</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>ファイルはまだありません</translation>
    </message>
</context>
<context>
    <name>Editor::FindPanel</name>
    <message>
        <source>Match case</source>
        <translation>大文字と小文字を区別</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>単語全体</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>正規表現</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置換</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>すべて置換</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>検索する文字列</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>置換後の文字列</translation>
    </message>
    <message>
        <source>In the replacement, \1 is the first captured text.</source>
        <translation>置換後の文字列では、\1 が最初にキャプチャした文字列です。</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>一致箇所</translation>
    </message>
    <message>
        <source>Searching: %1 so far</source>
        <translation>検索中: %1件</translation>
    </message>
    <message>
        <source>Not found.</source>
        <translation>見つかりません。</translation>
    </message>
    <message>
        <source>Matches: %1</source>
        <translation>一致: %1件</translation>
    </message>
    <message>
        <source>Replaced: %1.</source>
        <translation>置換: %1件。</translation>
    </message>
    <message>
        <source>Replaced: %1, not possible: %2.</source>
        <translation>置換: %1件、置換できないもの: %2件。</translation>
    </message>
    <message>
        <source>Replace “%1” with “%2”</source>
        <translation>「%1」を「%2」に置換</translation>
    </message>
    <message>
        <source>Matches in the texts and fields of the package appear here.</source>
        <translation>パッケージのテキストと項目で見つかった箇所がここに表示されます。</translation>
    </message>
</context>
<context>
    <name>Editor::IconButton</name>
    <message>
        <source>Icon</source>
        <translation>アイコン</translation>
    </message>
    <message>
        <source>Click to choose an icon, or drop a picture here.</source>
        <translation>クリックしてアイコンを選ぶか、ここに画像をドロップしてください。</translation>
    </message>
    <message>
        <source>Use the Default Icon</source>
        <translation>既定のアイコンを使用</translation>
    </message>
    <message>
        <source>Choose an Icon</source>
        <translation>アイコンを選択</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.bmp *.svg)</source>
        <translation>画像 (*.png *.jpg *.bmp *.svg)</translation>
    </message>
    <message>
        <source>The picture %1 cannot be read: %2</source>
        <translation>画像 %1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>Robots show the default icon.</source>
        <translation>ロボットには既定のアイコンが表示されます。</translation>
    </message>
    <message>
        <source>The file icon.png is beside the manifest.</source>
        <translation>マニフェストと同じ場所に icon.png があります。</translation>
    </message>
    <message>
        <source>Saving writes the file icon.png beside the manifest.</source>
        <translation>保存すると、マニフェストと同じ場所に icon.png が作成されます。</translation>
    </message>
</context>
<context>
    <name>Editor::IdentityPage</name>
    <message>
        <source>&amp;Identity</source>
        <translation>識別情報(&amp;I)</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>パッケージ</translation>
    </message>
    <message>
        <source>&amp;UID:</source>
        <translation>UID(&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Type version:</source>
        <translation>種別バージョン(&amp;T):</translation>
    </message>
    <message>
        <source>I&amp;nstaller:</source>
        <translation>インストーラー(&amp;N):</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>発行者</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>作者(&amp;A):</translation>
    </message>
    <message>
        <source>&amp;Organization:</source>
        <translation>組織(&amp;O):</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>日付(&amp;D):</translation>
    </message>
    <message>
        <source>&amp;Channel:</source>
        <translation>チャンネル(&amp;C):</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>アイコン</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Ve&amp;rsion:</source>
        <translation>バージョン(&amp;R):</translation>
    </message>
    <message>
        <source>Path on the ro&amp;bot:</source>
        <translation>ロボット上のパス(&amp;B):</translation>
    </message>
    <message>
        <source>Choose &amp;Icon…</source>
        <translation>アイコンを選択(&amp;I)…</translation>
    </message>
</context>
<context>
    <name>Editor::LanguageChooser</name>
    <message>
        <source>Add Language</source>
        <translation>言語を追加</translation>
    </message>
    <message>
        <source>Find a language, or type a code such as pt_BR</source>
        <translation>言語を検索するか、pt_BR のようなコードを入力</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Its own name</source>
        <translation>その言語での名前</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Another language</source>
        <translation>その他の言語</translation>
    </message>
    <message>
        <source>No known language matches. “%1” is added as a code.</source>
        <translation>該当する言語はありません。「%1」をコードとして追加します。</translation>
    </message>
    <message>
        <source>The package supports “%1” already.</source>
        <translation>パッケージはすでに「%1」に対応しています。</translation>
    </message>
    <message>
        <source>No known language matches, and “%1” is not a code. A code starts with letters; letters and digits follow an underscore, as in pt_BR.</source>
        <translation>該当する言語はなく、「%1」はコードではありません。コードは文字で始まり、pt_BR のように下線の後に文字や数字が続きます。</translation>
    </message>
</context>
<context>
    <name>Editor::LanguagePairChooser</name>
    <message>
        <source>&amp;Source:</source>
        <translation>原文の言語(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Target:</source>
        <translation>訳文の言語(&amp;T):</translation>
    </message>
    <message>
        <source>Source language</source>
        <translation>原文の言語</translation>
    </message>
    <message>
        <source>Target language</source>
        <translation>訳文の言語</translation>
    </message>
</context>
<context>
    <name>Editor::LanguagesModel</name>
    <message>
        <source>Supported languages: %1. With a name: %2. With a description: %3.</source>
        <translation>対応言語: %1。名前あり: %2。説明あり: %3。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Supported</source>
        <translation>対応</translation>
    </message>
    <message>
        <source>Described</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明文</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>網羅率</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Remove language %1</source>
        <translation>言語 %1 を削除</translation>
    </message>
</context>
<context>
    <name>Editor::MainWindow</name>
    <message>
        <source>Problems</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>As opened</source>
        <translation>開いたとき</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>このプログラムについて(&amp;A)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>このプログラムについて</translation>
    </message>
    <message>
        <source>The properties editor shows and edits the manifest of an application package for a robot.

Version %1</source>
        <translation>プロパティエディターは、ロボット用アプリケーションパッケージのマニフェストを表示し、編集します。

バージョン %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>New package</source>
        <translation>新規パッケージ</translation>
    </message>
    <message>
        <source>%1[*] – Package Properties</source>
        <translation>%1[*] – パッケージのプロパティ</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>The package keeps what was there before.</source>
        <translation>パッケージには以前の内容が残ります。</translation>
    </message>
    <message>
        <source>Continue Without It</source>
        <translation>このまま続ける</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>&amp;Problems</source>
        <translation>問題(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Next Problem</source>
        <translation>次の問題(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Problem</source>
        <translation>前の問題(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Fix All Safe Problems</source>
        <translation>安全な修正をすべて行う(&amp;F)</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>修正</translation>
    </message>
    <message>
        <source>Dark &amp;Colors</source>
        <translation>暗い配色(&amp;C)</translation>
    </message>
    <message>
        <source>Package Properties</source>
        <translation>パッケージのプロパティ</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>検索と置換</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>検索(&amp;F)…</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>次を検索(&amp;N)</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>前を検索(&amp;V)</translation>
    </message>
</context>
<context>
    <name>Editor::MarkLabel</name>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>注記</translation>
    </message>
</context>
<context>
    <name>Editor::MatchesModel</name>
    <message>
        <source>Field</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
</context>
<context>
    <name>Editor::PageStack</name>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>Editor::ProblemCount</name>
    <message>
        <source>No problems</source>
        <translation>問題はありません</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>エラー: %1、警告: %2</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2, notes: %3</source>
        <translation>エラー: %1、警告: %2、注記: %3</translation>
    </message>
</context>
<context>
    <name>Editor::ProblemDetails</name>
    <message>
        <source>Ignore</source>
        <translation>無視</translation>
    </message>
    <message>
        <source>Writes a comment that turns off the rule here</source>
        <translation>この場所で規則を無効にするコメントを書き込みます</translation>
    </message>
    <message>
        <source>The explanation of the selected problem and ways to correct it appear here.</source>
        <translation>選択した問題の説明と修正方法がここに表示されます。</translation>
    </message>
</context>
<context>
    <name>Editor::ProblemsModel</name>
    <message>
        <source>Severity</source>
        <translation>重大度</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>項目</translation>
    </message>
</context>
<context>
    <name>Editor::ProblemsPanel</name>
    <message>
        <source>Problems</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Fix all safe problems</source>
        <translation>安全な修正をすべて行う</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Show the field</source>
        <translation>フィールドを表示(&amp;S)</translation>
    </message>
    <message>
        <source>Filter problems</source>
        <translation>問題を絞り込む</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>注記</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>無視(&amp;I)</translation>
    </message>
    <message>
        <source>Ignore “%1”</source>
        <translation>“%1” を無視</translation>
    </message>
    <message>
        <source>Ignore %1 problems</source>
        <translation>%1 件の問題を無視</translation>
    </message>
    <message>
        <source>The package has no problems.</source>
        <translation>パッケージに問題はありません。</translation>
    </message>
    <message>
        <source>The filter above hides all problems.</source>
        <translation>上のフィルターにより、すべての問題が非表示になっています。</translation>
    </message>
</context>
<context>
    <name>Editor::PropertiesModel</name>
    <message>
        <source>A property needs a name.</source>
        <translation>プロパティには名前が必要です。</translation>
    </message>
    <message>
        <source>The service has “%1” already.</source>
        <translation>サービスにはすでに「%1」があります。</translation>
    </message>
    <message>
        <source>Rename property “%1”</source>
        <translation>プロパティ「%1」の名前を変更</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>Editor::Publishing</name>
    <message>
        <source>… and %1 more</source>
        <translation>…ほか %1 件</translation>
    </message>
    <message>
        <source>Publish</source>
        <translation>公開</translation>
    </message>
    <message>
        <source>A package with malformed speech scripts cannot be published.</source>
        <translation>形式の正しくない音声スクリプトがあるパッケージは公開できません。</translation>
    </message>
    <message>
        <source>The package still has errors.</source>
        <translation>パッケージにはまだエラーがあります。</translation>
    </message>
    <message>
        <source>Publish Anyway</source>
        <translation>それでも公開</translation>
    </message>
    <message>
        <source>Publish the Manifest</source>
        <translation>マニフェストを公開</translation>
    </message>
    <message>
        <source>Manifests (*.xml);;All files (*)</source>
        <translation>マニフェスト (*.xml);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>This is the manifest that is open.</source>
        <translation>これは開いているマニフェストです。</translation>
    </message>
    <message>
        <source>Publishing would replace it by a copy with fewer texts. Choose another file.</source>
        <translation>公開すると、テキストの少ないコピーに置き換わります。別のファイルを選択してください。</translation>
    </message>
</context>
<context>
    <name>Editor::Recovery</name>
    <message>
        <source>Recovered edits</source>
        <translation>復元した編集</translation>
    </message>
</context>
<context>
    <name>Editor::RecoveryDialogs</name>
    <message>
        <source>a package that was never saved</source>
        <translation>まだ保存されていないパッケージ</translation>
    </message>
    <message>
        <source>… and %1 others</source>
        <translation>… ほか%1件</translation>
    </message>
    <message>
        <source>Unsaved edits are not kept: %1</source>
        <translation>保存していない編集を保管できません: %1</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Another window (process %1 on %2) has this file open. Whoever saves last may overwrite the edits of the other.</source>
        <translation>別のウィンドウ（%2 のプロセス %1）がこのファイルを開いています。後から保存した方が、他方の編集を上書きすることがあります。</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>The editor ended before the edits of %1 were saved.</source>
        <translation>%1 の編集を保存する前にエディターが終了しました。</translation>
    </message>
    <message>
        <source>The file has changed since. The edits are made in the file as it is now.</source>
        <translation>その後ファイルが変更されています。編集は現在のファイルに適用されます。</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>復元する</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>The edits cannot be made in the file as it is now. They are kept.</source>
        <translation>現在のファイルには編集を適用できません。編集は保管されています。</translation>
    </message>
    <message>
        <source>Edits: %1, in %2</source>
        <translation>編集: %1件（%2）</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>The icon</source>
        <translation>アイコン</translation>
    </message>
</context>
<context>
    <name>Editor::Reloading</name>
    <message>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Your unsaved changes:</source>
        <translation>保存していないあなたの変更:</translation>
    </message>
    <message>
        <source>Changes in the file:</source>
        <translation>ファイルの変更:</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>両方を残す</translation>
    </message>
    <message>
        <source>Discard Yours</source>
        <translation>自分の変更を破棄</translation>
    </message>
    <message>
        <source>These fields were changed on both sides. They keep your values, and are listed as problems until you decide.</source>
        <translation>これらの項目は両方で変更されました。あなたの値が残り、決めるまで問題として表示されます。</translation>
    </message>
</context>
<context>
    <name>Editor::RequirementsModel</name>
    <message>
        <source>Lowest version</source>
        <translation>最小バージョン</translation>
    </message>
    <message>
        <source>Highest version</source>
        <translation>最大バージョン</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>ロボット</translation>
    </message>
    <message>
        <source>Lowest head</source>
        <translation>ヘッドの最小</translation>
    </message>
    <message>
        <source>Highest head</source>
        <translation>ヘッドの最大</translation>
    </message>
    <message>
        <source>Lowest body</source>
        <translation>ボディの最小</translation>
    </message>
    <message>
        <source>Highest body</source>
        <translation>ボディの最大</translation>
    </message>
    <message>
        <source>Choose a robot</source>
        <translation>ロボットを選択</translation>
    </message>
</context>
<context>
    <name>Editor::RequirementsPage</name>
    <message>
        <source>&amp;Requirements</source>
        <translation>要件(&amp;R)</translation>
    </message>
    <message>
        <source>Robots</source>
        <translation>ロボット</translation>
    </message>
    <message>
        <source>The package is offered to robots that meet one of these. An empty version is a bound that is not set.</source>
        <translation>パッケージは、これらのいずれかを満たすロボットに提供されます。空のバージョンは制限なしを表します。</translation>
    </message>
    <message>
        <source>Add &amp;Robot</source>
        <translation>ロボットを追加(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;move Robot</source>
        <translation>ロボットを削除(&amp;M)</translation>
    </message>
    <message>
        <source>Brio middleware</source>
        <translation>ミドルウェア Brio</translation>
    </message>
    <message>
        <source>The versions that the package was tried on; the lowest is needed.</source>
        <translation>パッケージの動作を確認したバージョンです。最小バージョンは必須です。</translation>
    </message>
    <message>
        <source>Add &amp;Brio Version</source>
        <translation>Brio のバージョンを追加(&amp;B)</translation>
    </message>
    <message>
        <source>Without a robot, the package is offered to none. “Add Robot” adds one.</source>
        <translation>ロボットがないと、パッケージはどのロボットにも提供されません。「ロボットを追加」で追加します。</translation>
    </message>
    <message>
        <source>The versions that the package runs on. “Add Brio Version” adds one.</source>
        <translation>パッケージが動作するバージョンです。「Brio のバージョンを追加」で追加します。</translation>
    </message>
    <message>
        <source>Rem&amp;ove Brio Version</source>
        <translation>Brio のバージョンを削除(&amp;O)</translation>
    </message>
</context>
<context>
    <name>Editor::ReviewPage</name>
    <message>
        <source>Re&amp;view</source>
        <translation>確認(&amp;V)</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>What has changed since the package was saved:</source>
        <translation>最後に保存してからの変更:</translation>
    </message>
    <message>
        <source>XML</source>
        <translation>XML</translation>
    </message>
    <message>
        <source>Publication</source>
        <translation>公開</translation>
    </message>
    <message>
        <source>What publishing changes in the copy for users:</source>
        <translation>公開用のコピーで変わる内容:</translation>
    </message>
    <message>
        <source>Nothing has changed.</source>
        <translation>変更はありません。</translation>
    </message>
    <message>
        <source>Nothing: all texts are plain, in languages that the package has.</source>
        <translation>なし: すべてのテキストはプレーンで、パッケージの言語のものです。</translation>
    </message>
</context>
<context>
    <name>Editor::RowActions</name>
    <message>
        <source>This list takes entries of another kind.</source>
        <translation>この一覧には別の種類の項目が入ります。</translation>
    </message>
    <message>
        <source>The list has “%1” already.</source>
        <translation>一覧には既に「%1」があります。</translation>
    </message>
    <message>
        <source>The clipboard has nothing for this list.</source>
        <translation>クリップボードにこの一覧へ貼り付けられるものはありません。</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>複製(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Move Up</source>
        <translation>上へ移動(&amp;M)</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>下へ移動(&amp;W)</translation>
    </message>
</context>
<context>
    <name>Editor::ServicesModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Starts with the robot</source>
        <translation>ロボットと同時に起動</translation>
    </message>
</context>
<context>
    <name>Editor::ServicesPage</name>
    <message>
        <source>&amp;Services</source>
        <translation>サービス(&amp;S)</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>サービス</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>追加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>A service is a program that runs in the background on the robot. “Add” adds one.</source>
        <translation>サービスはロボットのバックグラウンドで動くプログラムです。「追加」で追加します。</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Settings of the service that is selected above. “Add Property” adds one.</source>
        <translation>上で選択したサービスの設定です。「プロパティを追加」で追加します。</translation>
    </message>
    <message>
        <source>Add Pr&amp;operty</source>
        <translation>プロパティを追加(&amp;O)</translation>
    </message>
    <message>
        <source>Re&amp;move Property</source>
        <translation>プロパティを削除(&amp;M)</translation>
    </message>
</context>
<context>
    <name>Editor::StartPage</name>
    <message>
        <source>%1 (the file is gone)</source>
        <translation>%1(ファイルがありません)</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>パッケージ</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Recent packages</source>
        <translation>最近使ったパッケージ</translation>
    </message>
    <message>
        <source>The packages that you open appear here.</source>
        <translation>開いたパッケージがここに表示されます。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Open a Manifest…</source>
        <translation>マニフェストを開く…</translation>
    </message>
    <message>
        <source>New package</source>
        <translation>新しいパッケージ</translation>
    </message>
</context>
<context>
    <name>Editor::StringListEditor</name>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>Editor::StringListModel</name>
    <message>
        <source>The list has “%1” already.</source>
        <translation>一覧には既に「%1」があります。</translation>
    </message>
</context>
<context>
    <name>Editor::TextCells</name>
    <message>
        <source>Missing</source>
        <translation>未翻訳</translation>
    </message>
    <message>
        <source>Malformed script</source>
        <translation>不正なスクリプト</translation>
    </message>
    <message>
        <source>Source changed</source>
        <translation>原文が変更済み</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>原文と同じ</translation>
    </message>
    <message>
        <source>Translated</source>
        <translation>翻訳済み</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>原文</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>訳文</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>パッケージ</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
</context>
<context>
    <name>Editor::TextPair</name>
    <message>
        <source>As plain text: %1</source>
        <translation>プレーンテキスト: %1</translation>
    </message>
    <message>
        <source>Malformed speech script: %1</source>
        <translation>不正な音声スクリプト: %1</translation>
    </message>
    <message>
        <source>Source text</source>
        <translation>原文</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>訳文</translation>
    </message>
    <message>
        <source>Type the translation; Ctrl+Return goes on</source>
        <translation>訳文を入力します。Ctrl+Return で次に進みます</translation>
    </message>
</context>
<context>
    <name>Editor::TextsPage</name>
    <message>
        <source>&amp;Languages</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>Languages and texts</source>
        <translation>言語とテキスト</translation>
    </message>
    <message>
        <source>&amp;Remove Language</source>
        <translation>言語を削除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>No language is selected.</source>
        <translation>言語が選択されていません。</translation>
    </message>
    <message>
        <source>&amp;Add Language…</source>
        <translation>言語を追加(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>説明(&amp;D):</translation>
    </message>
    <message>
        <source>The languages that the package supports or has texts in. “Add Language” adds one.</source>
        <translation>パッケージが対応しているか、テキストがある言語です。「言語を追加」で追加します。</translation>
    </message>
</context>
<context>
    <name>Editor::TopicsModel</name>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Topic file</source>
        <translation>トピックファイル</translation>
    </message>
    <message>
        <source>The file is beside the manifest.</source>
        <translation>ファイルはマニフェストと同じ場所にあります。</translation>
    </message>
</context>
<context>
    <name>Editor::TranslationPage</name>
    <message>
        <source>Translate the item before this one first: a list has no gaps.</source>
        <translation>先に前の項目を翻訳してください。リストに空きは作れません。</translation>
    </message>
    <message>
        <source>&amp;Translation</source>
        <translation>翻訳(&amp;T)</translation>
    </message>
    <message>
        <source>Sho&amp;w:</source>
        <translation>表示(&amp;W):</translation>
    </message>
    <message>
        <source>All texts</source>
        <translation>すべてのテキスト</translation>
    </message>
    <message>
        <source>Find a text</source>
        <translation>テキストを検索</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>No text is shown. A package needs two languages for translating; the page Languages adds them.</source>
        <translation>表示するテキストがありません。翻訳には 2 つの言語が必要です。言語は「言語」のページで追加できます。</translation>
    </message>
    <message>
        <source>Previo&amp;us Missing</source>
        <translation>前の未翻訳(&amp;U)</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+↑</translation>
    </message>
    <message>
        <source>&amp;Next Missing</source>
        <translation>次の未翻訳(&amp;N)</translation>
    </message>
    <message>
        <source>Alt+Down, or Ctrl+Return while typing</source>
        <translation>Alt+↓、または入力中に Ctrl+Return</translation>
    </message>
    <message>
        <source>&amp;Copy Source</source>
        <translation>原文をコピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copies the source text into the translation</source>
        <translation>原文を訳文にコピーします</translation>
    </message>
    <message>
        <source>Fill &amp;All Missing</source>
        <translation>未翻訳をすべて埋める(&amp;A)</translation>
    </message>
    <message>
        <source>Copies the source text to where the translation is missing</source>
        <translation>訳文のないところに原文をコピーします</translation>
    </message>
    <message>
        <source>E&amp;xport XLIFF…</source>
        <translation>XLIFF をエクスポート(&amp;X)…</translation>
    </message>
    <message>
        <source>Writes the texts for translation tools</source>
        <translation>翻訳ツール用にテキストを書き出します</translation>
    </message>
    <message>
        <source>&amp;Import XLIFF…</source>
        <translation>XLIFF をインポート(&amp;I)…</translation>
    </message>
    <message>
        <source>Reads texts from translation tools</source>
        <translation>翻訳ツールのテキストを読み込みます</translation>
    </message>
    <message>
        <source>Translated: %1 of %2.</source>
        <translation>翻訳済み: %2 件中 %1 件。</translation>
    </message>
    <message>
        <source>Reading the texts…</source>
        <translation>テキストを読み込んでいます…</translation>
    </message>
    <message>
        <source>No other text is missing.</source>
        <translation>ほかに未翻訳のテキストはありません。</translation>
    </message>
    <message>
        <source>Texts to show</source>
        <translation>表示するテキスト</translation>
    </message>
</context>
<context>
    <name>Editor::XmlView</name>
    <message>
        <source>The manifest as XML</source>
        <translation>XML としてのマニフェスト</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Shows and edits the manifest of an application package.</source>
        <translation>アプリケーションパッケージのマニフェストを表示し、編集します。</translation>
    </message>
    <message>
        <source>The manifest to open.</source>
        <translation>開くマニフェスト。</translation>
    </message>
</context>
</TS>
