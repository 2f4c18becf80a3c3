<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Application UID is not defined correctly.</source>
        <translation>アプリケーションの UID が正しく定義されていません。</translation>
    </message>
    <message>
        <source>Robot requirements are not defined.</source>
        <translation>ロボットの要件が定義されていません。</translation>
    </message>
    <message>
        <source>A robot requirement has no model defined.</source>
        <translation>モデルが定義されていないロボット要件があります。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; robot requirement has a wrong body version max value.</source>
        <translation>ロボット要件「%1」のボディの最大バージョンが正しくありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; robot requirement has a wrong head version max value.</source>
        <translation>ロボット要件「%1」のヘッドの最大バージョンが正しくありません。</translation>
    </message>
    <message>
        <source>Brio version requirement is not defined.</source>
        <translation>Brio のバージョン要件が定義されていません。</translation>
    </message>
    <message>
        <source>Brio version requirement is not valid: minimal version is not defined.</source>
        <translation>Brio のバージョン要件が無効です。最小バージョンが定義されていません。</translation>
    </message>
    <message>
        <source>Brio version requirement is not valid: %1 &amp;lt; %2</source>
        <translation>Brio のバージョン要件が無効です: %1 &amp;lt; %2</translation>
    </message>
    <message>
        <source>Application name is not defined for: %1</source>
        <translation>アプリケーションの名前が次の言語で定義されていません: %1</translation>
    </message>
    <message>
        <source>Application description is not defined for: %1</source>
        <translation>アプリケーションの説明が次の言語で定義されていません: %1</translation>
    </message>
    <message>
        <source>Behavior &apos;%1&apos; has no trigger sentence defined for: %2</source>
        <translation>ビヘイビア「%1」のトリガー文が次の言語で定義されていません: %2</translation>
    </message>
    <message>
        <source>Any robot</source>
        <translation>すべてのロボット</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorAddRemoveConditionCommand</name>
    <message>
        <source>Add a condition to the behavior</source>
        <translation>ビヘイビアに条件を追加</translation>
    </message>
    <message>
        <source>Remove a condition from the behavior</source>
        <translation>ビヘイビアから条件を削除</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorAddRemoveLoadingResponseCommand</name>
    <message>
        <source>Add a loading response to the behavior</source>
        <translation>ビヘイビアに読み込み中の応答を追加</translation>
    </message>
    <message>
        <source>Remove a loading response from the behavior</source>
        <translation>ビヘイビアから読み込み中の応答を削除</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorAddRemovePermissionCommand</name>
    <message>
        <source>Add a permission (%1)</source>
        <translation>権限を追加 (%1)</translation>
    </message>
    <message>
        <source>Remove a permission (%1)</source>
        <translation>権限を削除 (%1)</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorAddRemoveTagCommand</name>
    <message>
        <source>Add a tag to the behavior</source>
        <translation>ビヘイビアにタグを追加</translation>
    </message>
    <message>
        <source>Remove a tag from the behavior</source>
        <translation>ビヘイビアからタグを削除</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorAddRemoveTriggerSentenceCommand</name>
    <message>
        <source>Add a trigger sentence to the behavior</source>
        <translation>ビヘイビアにトリガー文を追加</translation>
    </message>
    <message>
        <source>Remove a trigger sentence from the behavior</source>
        <translation>ビヘイビアからトリガー文を削除</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorDescriptionCommand</name>
    <message>
        <source>Set Behavior description (%1)</source>
        <translation>ビヘイビアの説明を変更 (%1)</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorNameCommand</name>
    <message>
        <source>Set Behavior name (%1)</source>
        <translation>ビヘイビアの名前を変更 (%1)</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorNatureCommand</name>
    <message>
        <source>Set behavior nature</source>
        <translation>ビヘイビアの種別を変更</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorPathCommand</name>
    <message>
        <source>Set behavior path</source>
        <translation>ビヘイビアのパスを変更</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorSetConditionCommand</name>
    <message>
        <source>Set behavior condition for %1</source>
        <translation>%1 のビヘイビアの条件を変更</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorSetLoadingResponseCommand</name>
    <message>
        <source>Set behavior loading response #%1 in %2</source>
        <translation>ビヘイビアの読み込み中の応答 %1 を変更 (%2)</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorSetTagCommand</name>
    <message>
        <source>Set behavior tag #%1 (%2)</source>
        <translation>ビヘイビアのタグ %1 を変更 (%2)</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorSetTriggerSentenceCommand</name>
    <message>
        <source>Set behavior trigger sentence #%1 (%2)</source>
        <translation>ビヘイビアのトリガー文 %1 を変更 (%2)</translation>
    </message>
</context>
<context>
    <name>Zel::BehaviorUserRequestableCommand</name>
    <message>
        <source>a behavior</source>
        <translation>ビヘイビア</translation>
    </message>
    <message>
        <source>Set %1 as not user-requestable</source>
        <translation>ユーザーによる %1 の呼び出しを許可しない</translation>
    </message>
    <message>
        <source>Set %1 as user-requestable</source>
        <translation>ユーザーによる %1 の呼び出しを許可</translation>
    </message>
</context>
<context>
    <name>Zel::DialogInfoModelNameCommand</name>
    <message>
        <source>Set dialog topic name from %1 to %2</source>
        <translation>ダイアログのトピック名を %1 から %2 に変更</translation>
    </message>
</context>
<context>
    <name>Zel::DialogInfoModelRemoveTopicCommand</name>
    <message>
        <source>Remove language %1</source>
        <translation>言語 %1 を削除</translation>
    </message>
</context>
<context>
    <name>Zel::DialogInfoModelTypeVersionCommand</name>
    <message>
        <source>Set dialog type version from %1 to %2</source>
        <translation>ダイアログの種別バージョンを %1 から %2 に変更</translation>
    </message>
</context>
<context>
    <name>Zel::PackageGenericValueCommand</name>
    <message>
        <source>Set Application&apos;s icon</source>
        <translation>アプリケーションのアイコンを変更</translation>
    </message>
    <message>
        <source>Set Application&apos;s version</source>
        <translation>アプリケーションのバージョンを変更</translation>
    </message>
</context>
<context>
    <name>Zel::PackageLocalizedStringCommand</name>
    <message>
        <source>name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Set application&apos;s %1 (%2)</source>
        <translation>アプリケーションの%1を変更 (%2)</translation>
    </message>
</context>
<context>
    <name>Zel::PackageModel</name>
    <message>
        <source>The UID identifies the package on the robot and in lists of packages. It has 1 to 50 characters: lower-case letters from a to z, digits, underscores and hyphens, but not only digits.</source>
        <translation>UID は、ロボット上およびすべてのパッケージ一覧でパッケージを表す名前です。a から z の小文字、数字、アンダースコア、ハイフンからなる 1 ～ 50 文字で、少なくとも 1 文字は数字以外です。</translation>
    </message>
    <message>
        <source>Write a UID such as my-app_2.</source>
        <translation>my-app_2 のような UID を入力してください。</translation>
    </message>
    <message>
        <source>A package is only offered to robots that meet one of its robot requirements. Without a robot requirement, it is offered to none.</source>
        <translation>パッケージは、対応するロボットにだけ提供されるように、どのロボットで動作するかを示します。ロボットの要件がなければ、どのロボットにも提供されません。</translation>
    </message>
    <message>
        <source>Add a robot requirement with a robot model or family.</source>
        <translation>ロボットのモデルまたはファミリーを指定した要件を追加してください。</translation>
    </message>
    <message>
        <source>A robot requirement without a model does not specify a robot, so its version ranges have no effect.</source>
        <translation>モデルが空の要件は対象のロボットを示さず、そのバージョン範囲は意味を持ちません。</translation>
    </message>
    <message>
        <source>Choose a robot model or family for the requirement, or remove it.</source>
        <translation>要件のロボットのモデルまたはファミリーを選ぶか、要件を削除してください。</translation>
    </message>
    <message>
        <source>The maximum body version is lower than the minimum, so no robot can meet the requirement.</source>
        <translation>受け入れるボディの最大バージョンが最小バージョンより小さいため、どのロボットも要件を満たせません。</translation>
    </message>
    <message>
        <source>Raise or clear the maximum, or lower the minimum. An empty maximum means no upper bound.</source>
        <translation>最大値を上げるか空にするか、最小値を下げてください。最大値が空の場合、上限はありません。</translation>
    </message>
    <message>
        <source>The maximum head version is lower than the minimum, so no robot can meet the requirement.</source>
        <translation>受け入れるヘッドの最大バージョンが最小バージョンより小さいため、どのロボットも要件を満たせません。</translation>
    </message>
    <message>
        <source>A package declares the versions of the Brio middleware that it runs on, so that it is not installed where it cannot start.</source>
        <translation>パッケージは、起動できない環境にインストールされないように、ミドルウェア Brio のどのバージョンで動作するかを示します。</translation>
    </message>
    <message>
        <source>Add a Brio requirement with the lowest version that the package was tested with.</source>
        <translation>パッケージの動作を確認した最も低いバージョンで Brio の要件を追加してください。</translation>
    </message>
    <message>
        <source>A Brio requirement needs a minimum version; only the maximum is optional. Requirements after the first one without a minimum are not checked.</source>
        <translation>Brio の要件には最小バージョンが必要で、省略できるのは最大バージョンだけです。最小バージョンのない最初の要件より後の要件は検査されません。</translation>
    </message>
    <message>
        <source>Set the minimum version of the requirement.</source>
        <translation>要件の最小バージョンを設定してください。</translation>
    </message>
    <message>
        <source>The maximum Brio version is lower than the minimum, so no robot can meet the requirement.</source>
        <translation>Brio の最大バージョンが最小バージョンより小さいため、どのロボットも要件を満たせません。</translation>
    </message>
    <message>
        <source>The package supports the default language but has no name in it. This name also replaces missing ones in other languages; without it, users see the UID.</source>
        <translation>パッケージは既定の言語に対応していますが、その言語の名前がありません。この名前は、他の言語で欠けている名前の代わりにもなります。ない場合、ユーザーには UID が表示されます。</translation>
    </message>
    <message>
        <source>Add a name in the default language.</source>
        <translation>既定の言語で名前を入力してください。</translation>
    </message>
    <message>
        <source>The package supports a language but has no name in it. Users of this language see the name in the default language, or the UID.</source>
        <translation>パッケージが対応している言語の名前がありません。その言語のユーザーには、既定の言語の名前または UID が表示されます。</translation>
    </message>
    <message>
        <source>Add a name in this language, or stop supporting it.</source>
        <translation>その言語で名前を入力するか、その言語への対応をやめてください。</translation>
    </message>
    <message>
        <source>The package supports a language but has no description in it. Users of this language see the description in the default language, or none.</source>
        <translation>パッケージが対応している言語の説明がありません。その言語のユーザーには、既定の言語の説明が表示されるか、何も表示されません。</translation>
    </message>
    <message>
        <source>Add a description in this language, or stop supporting it.</source>
        <translation>その言語で説明を入力するか、その言語への対応をやめてください。</translation>
    </message>
    <message>
        <source>A behavior with trigger sentences in one language needs them in every supported language; otherwise some users cannot start it by voice.</source>
        <translation>ある言語の文で開始できるビヘイビアは、パッケージが対応するすべての言語で同じように開始できる必要があります。そうでないと、一部のユーザーが利用できません。</translation>
    </message>
    <message>
        <source>Add at least one trigger sentence in this language, or remove those in all languages.</source>
        <translation>その言語でトリガー文を少なくとも 1 つ入力するか、すべての言語のトリガー文を削除してください。</translation>
    </message>
    <message>
        <source>The value has the wrong type.</source>
        <translation>値の種類が違います。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; already exists.</source>
        <translation>「%1」は既にあります。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is already in use.</source>
        <translation>「%1」は既に使われています。</translation>
    </message>
    <message>
        <source>Lowest head version</source>
        <translation>頭部の最小バージョン</translation>
    </message>
    <message>
        <source>Highest head version</source>
        <translation>頭部の最大バージョン</translation>
    </message>
    <message>
        <source>Lowest body version</source>
        <translation>本体の最小バージョン</translation>
    </message>
    <message>
        <source>Highest body version</source>
        <translation>本体の最大バージョン</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Nature</source>
        <translation>種別</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>権限</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>条件</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>Trigger sentence</source>
        <translation>トリガー文</translation>
    </message>
    <message>
        <source>Loading response</source>
        <translation>読み込み時の応答</translation>
    </message>
    <message>
        <source>Topic name</source>
        <translation>トピック名</translation>
    </message>
    <message>
        <source>Type version</source>
        <translation>型のバージョン</translation>
    </message>
    <message>
        <source>Topic file</source>
        <translation>トピックファイル</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>UID</source>
        <translation>UID</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Installer</source>
        <translation>インストーラー</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>Organization</source>
        <translation>組織</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Supported language</source>
        <translation>対応言語</translation>
    </message>
    <message>
        <source>Description language</source>
        <translation>説明言語</translation>
    </message>
    <message>
        <source>Robot requirement</source>
        <translation>ロボットの要件</translation>
    </message>
    <message>
        <source>Brio requirement</source>
        <translation>Brio の要件</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>ビヘイビア</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>ダイアログ</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>サービス</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The text contains half of a surrogate pair, which a manifest cannot represent.</source>
        <translation>テキストに、マニフェストに保存できない不完全なサロゲートペアが含まれています。</translation>
    </message>
    <message>
        <source>The text contains the character U+%1, which a manifest cannot represent.</source>
        <translation>テキストに、マニフェストに保存できない文字 U+%1 が含まれています。</translation>
    </message>
    <message>
        <source>The field does not allow this change.</source>
        <translation>このフィールドはその変更に対応していません。</translation>
    </message>
    <message>
        <source>The list has no such index.</source>
        <translation>リストにその番号はありません。</translation>
    </message>
    <message>
        <source>There is no package to edit.</source>
        <translation>編集するパッケージがありません。</translation>
    </message>
    <message>
        <source>It is missing.</source>
        <translation>ありません。</translation>
    </message>
    <message>
        <source>It must be a whole number, 0 or more.</source>
        <translation>0 以上の整数でなければなりません。</translation>
    </message>
    <message>
        <source>There is no such member.</source>
        <translation>そのメンバーはありません。</translation>
    </message>
    <message>
        <source>It must be &apos;set&apos;, &apos;insert&apos;, &apos;remove&apos; or &apos;move&apos;.</source>
        <translation>&apos;set&apos;、&apos;insert&apos;、&apos;remove&apos;、&apos;move&apos; のいずれかでなければなりません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not the path of a field.</source>
        <translation>&apos;%1&apos; はフィールドのパスではありません。</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>%1 行 %2 列</translation>
    </message>
    <message>
        <source>It is not JSON at %1: %2.</source>
        <translation>%1 で JSON になっていません: %2。</translation>
    </message>
    <message>
        <source>Format %1 is not supported.</source>
        <translation>形式 %1 は不明です。</translation>
    </message>
    <message>
        <source>Its &apos;%1&apos; is missing.</source>
        <translation>&apos;%1&apos; がありません。</translation>
    </message>
    <message>
        <source>The manifest must have one entry of &apos;%1&apos;.</source>
        <translation>マニフェストには &apos;%1&apos; の項目が一つだけ必要です。</translation>
    </message>
    <message>
        <source>; did you mean &apos;%1&apos;?</source>
        <translation>。&apos;%1&apos; のことですか?</translation>
    </message>
    <message>
        <source>There is no &apos;%1&apos;%2</source>
        <translation>&apos;%1&apos; はありません%2</translation>
    </message>
    <message>
        <source>There is no item &apos;%1&apos;: the list is empty.</source>
        <translation>項目 &apos;%1&apos; はありません。リストは空です。</translation>
    </message>
    <message>
        <source>There is no item &apos;%1&apos;; there are 0 to %2.</source>
        <translation>項目 &apos;%1&apos; はありません。あるのは 0 から %2 です。</translation>
    </message>
    <message>
        <source>There is no field &apos;%1&apos;%2</source>
        <translation>フィールド &apos;%1&apos; はありません%2</translation>
    </message>
    <message>
        <source>; the fields are %1.</source>
        <translation>。フィールドは %1 です。</translation>
    </message>
    <message>
        <source>It does not exist.</source>
        <translation>ありません。</translation>
    </message>
    <message>
        <source>It is written &apos;%1%2&apos;.</source>
        <translation>&apos;%1%2&apos; と書きます。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither true nor false.</source>
        <translation>&apos;%1&apos; は true でも false でもありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a version, that is, numbers separated by dots as in 2.1.</source>
        <translation>&apos;%1&apos; はバージョンではありません。2.1 のように数字を点で区切ります。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an entry; set the fields of the entry instead.</source>
        <translation>&apos;%1&apos; は項目ではありません。項目のフィールドを設定してください。</translation>
    </message>
    <message>
        <source>; available: %1.</source>
        <translation>。使えるのは %1 です。</translation>
    </message>
    <message>
        <source>Change it to &apos;%1&apos;</source>
        <translation>&apos;%1&apos; に変更</translation>
    </message>
    <message>
        <source>Remove the requirement</source>
        <translation>要件を削除</translation>
    </message>
    <message>
        <source>Swap minimum and maximum</source>
        <translation>最小と最大を入れ替え</translation>
    </message>
    <message>
        <source>Clear the maximum</source>
        <translation>最大を消去</translation>
    </message>
    <message>
        <source>Stop supporting %1</source>
        <translation>%1 の対応をやめる</translation>
    </message>
    <message>
        <source>Copy from %1</source>
        <translation>%1 からコピー</translation>
    </message>
    <message>
        <source>Rename it to &apos;%1&apos;</source>
        <translation>&apos;%1&apos; に改名</translation>
    </message>
    <message>
        <source>Remove the entry</source>
        <translation>項目を削除</translation>
    </message>
    <message>
        <source>Remove the permission</source>
        <translation>権限を削除</translation>
    </message>
    <message>
        <source>Clear it</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Remove the language</source>
        <translation>言語を削除</translation>
    </message>
    <message>
        <source>Describe the package in %1</source>
        <translation>パッケージの説明言語に %1 を追加</translation>
    </message>
    <message>
        <source>Remove the text</source>
        <translation>テキストを削除</translation>
    </message>
    <message>
        <source>Remove the topic</source>
        <translation>トピックを削除</translation>
    </message>
    <message>
        <source>Support %1</source>
        <translation>%1 に対応</translation>
    </message>
    <message>
        <source>Malformed speech script (line %1, column %2): %3</source>
        <translation>音声スクリプトの形式が正しくありません (%1 行 %2 列): %3</translation>
    </message>
    <message>
        <source>A text with markup is a speech script. A malformed script cannot be converted to plain text, so &apos;zel-package publish&apos; refuses the package.</source>
        <translation>マークアップのあるテキストは音声スクリプトです。形式が正しくないとプレーンテキストに変換できず、&apos;zel-package publish&apos; はパッケージを受け付けません。</translation>
    </message>
    <message>
        <source>Correct the markup, or write &amp;lt; for a &lt; that does not start a tag.</source>
        <translation>マークアップを直すか、タグでない &lt; は &amp;lt; と書いてください。</translation>
    </message>
    <message>
        <source>Another behavior also has the path &apos;%1&apos;.</source>
        <translation>パス &apos;%1&apos; のビヘイビアーがほかにもあります。</translation>
    </message>
    <message>
        <source>A behavior is started by its path; if several have the same path, only the first is found.</source>
        <translation>ビヘイビアーはパスで起動されます。同じパスが複数あると最初のものしか見つかりません。</translation>
    </message>
    <message>
        <source>Give each behavior a unique path, or remove one of them.</source>
        <translation>ビヘイビアーごとに別のパスを付けるか、どれかを削除してください。</translation>
    </message>
    <message>
        <source>Another dialog also has the topic name &apos;%1&apos;.</source>
        <translation>トピック名 &apos;%1&apos; のダイアログがほかにもあります。</translation>
    </message>
    <message>
        <source>A dialog is identified by its topic name; if several have the same name, only the first is found.</source>
        <translation>ダイアログはトピック名で見つけられます。同じ名前が複数あると最初のものしか見つかりません。</translation>
    </message>
    <message>
        <source>Give each dialog a unique topic name, or remove one of them.</source>
        <translation>ダイアログごとに別のトピック名を付けるか、どれかを削除してください。</translation>
    </message>
    <message>
        <source>Another service also has the name &apos;%1&apos;.</source>
        <translation>名前 &apos;%1&apos; のサービスがほかにもあります。</translation>
    </message>
    <message>
        <source>A service is identified by its name; if several have the same name, only the first is found.</source>
        <translation>サービスは名前で見つけられます。同じ名前が複数あると最初のものしか見つかりません。</translation>
    </message>
    <message>
        <source>Give each service a unique name, or remove one of them.</source>
        <translation>サービスごとに別の名前を付けるか、どれかを削除してください。</translation>
    </message>
    <message>
        <source>The permission &apos;%1&apos; is listed twice.</source>
        <translation>権限 &apos;%1&apos; が二度書かれています。</translation>
    </message>
    <message>
        <source>Listing a permission again has no effect.</source>
        <translation>同じ権限を繰り返しても、許可は増えません。</translation>
    </message>
    <message>
        <source>Remove the duplicate.</source>
        <translation>二つ目を削除してください。</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1: 空です。</translation>
    </message>
    <message>
        <source>Behaviors, dialogs, services, permissions and properties are identified by their names; an entry without a name cannot be used.</source>
        <translation>ビヘイビアー、ダイアログ、サービス、権限、プロパティは名前で見つけられます。名前がないと使えません。</translation>
    </message>
    <message>
        <source>Enter a name, or remove the entry.</source>
        <translation>名前を書くか、項目を削除してください。</translation>
    </message>
    <message>
        <source>Unknown nature &apos;%1&apos;%2</source>
        <translation>性質 &apos;%1&apos; はありません%2</translation>
    </message>
    <message>
        <source>The nature defines how a behavior shares the robot with others: &apos;interactive&apos;, &apos;solitary&apos;, or empty.</source>
        <translation>性質は、ビヘイビアーがほかとロボットをどう共有するかを表します。&apos;interactive&apos;、&apos;solitary&apos;、または空です。</translation>
    </message>
    <message>
        <source>Choose one of the two, or clear the nature.</source>
        <translation>どちらかを選ぶか、性質を消去してください。</translation>
    </message>
    <message>
        <source>Unknown language &apos;%1&apos;%2</source>
        <translation>言語 &apos;%1&apos; は既知の言語にありません%2</translation>
    </message>
    <message>
        <source>&apos;zel-package languages&apos; does not list this code, so the package will not be offered to users of the language.</source>
        <translation>このコードは &apos;zel-package languages&apos; の一覧にないので、その利用者を見つけられません。</translation>
    </message>
    <message>
        <source>Correct the code, which consists of a language and a country, as in fr_FR.</source>
        <translation>fr_FR のような言語と国のコードに直してください。</translation>
    </message>
    <message>
        <source>Unknown robot &apos;%1&apos;%2</source>
        <translation>ロボット &apos;%1&apos; は既知のロボットにありません%2</translation>
    </message>
    <message>
        <source>&apos;zel-package robots&apos; does not list this model, so possibly no robot meets the requirement.</source>
        <translation>このモデルは &apos;zel-package robots&apos; の一覧にないので、要件を満たすロボットがないかもしれません。</translation>
    </message>
    <message>
        <source>Correct the model, or install the description of the robot.</source>
        <translation>モデルを直すか、そのロボットの記述をインストールしてください。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a version.</source>
        <translation>&apos;%1&apos; はバージョンではありません。</translation>
    </message>
    <message>
        <source>A version consists of decimal numbers separated by dots. Any other value counts as no version.</source>
        <translation>バージョンは点で区切った数字です。ほかの形のものは、ないものとみなされます。</translation>
    </message>
    <message>
        <source>Write a version such as 2.1.</source>
        <translation>2.1 のようなバージョンを書いてください。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date.</source>
        <translation>&apos;%1&apos; は日付ではありません。</translation>
    </message>
    <message>
        <source>Dates are in the ISO 8601 format, with the year first, so that all programs read them alike.</source>
        <translation>日付は、どのプログラムでも同じに読めるよう、ISO 8601 に従って年から書きます。</translation>
    </message>
    <message>
        <source>Write a date such as 2026-09-14.</source>
        <translation>2026-09-14 のような日付を書いてください。</translation>
    </message>
    <message>
        <source>The package has a text in %1, but does not list the language.</source>
        <translation>パッケージの言語にない %1 のテキストがあります。</translation>
    </message>
    <message>
        <source>The package neither supports the language nor has descriptions in it, so the text is not used, and publishing removes it.</source>
        <translation>パッケージはその言語に対応しておらず、説明もその言語にないので、テキストは使われず、公開時に削られます。</translation>
    </message>
    <message>
        <source>Add the language to the package, or remove the text.</source>
        <translation>言語をパッケージに加えるか、テキストを削除してください。</translation>
    </message>
    <message>
        <source>The text is only white space.</source>
        <translation>テキストが空白だけです。</translation>
    </message>
    <message>
        <source>Users would see an empty name, and the robot would say nothing or wait for nothing.</source>
        <translation>利用者には空の名前が見え、ロボットは何も言わず、何も待ちません。</translation>
    </message>
    <message>
        <source>Enter a text, or remove it.</source>
        <translation>テキストを書くか、削除してください。</translation>
    </message>
    <message>
        <source>There is no topic file &apos;%1&apos; beside the manifest.</source>
        <translation>マニフェストの隣にトピックファイル &apos;%1&apos; がありません。</translation>
    </message>
    <message>
        <source>A dialog has one topic file per language. The path is relative to the manifest&apos;s folder.</source>
        <translation>ダイアログは、指定したトピックファイルによってその言語で話します。パスはマニフェストのフォルダーからの相対パスです。</translation>
    </message>
    <message>
        <source>Correct the path, add the file, or remove the topic.</source>
        <translation>パスを直すか、ファイルを加えるか、トピックを削除してください。</translation>
    </message>
    <message>
        <source>The file icon.png beside the manifest is not a PNG image.</source>
        <translation>マニフェストの隣の icon.png は PNG 画像ではありません。</translation>
    </message>
    <message>
        <source>The icon of a package is the PNG image icon.png beside its manifest. Without it, users see the default icon.</source>
        <translation>パッケージのアイコンは、マニフェストの隣の PNG 画像 icon.png です。なければ既定のアイコンが表示されます。</translation>
    </message>
    <message>
        <source>Save the icon as PNG.</source>
        <translation>アイコンを PNG で保存してください。</translation>
    </message>
    <message>
        <source>No supported language is defined.</source>
        <translation>対応言語が定義されていません。</translation>
    </message>
    <message>
        <source>A package is offered to users of the languages that it supports; this one is offered to nobody.</source>
        <translation>パッケージは対応言語の利用者に提供されます。これは誰にも提供されません。</translation>
    </message>
    <message>
        <source>Add the languages that the package supports.</source>
        <translation>パッケージが話す言語を加えてください。</translation>
    </message>
    <message>
        <source>%1 of “%2”</source>
        <translation>「%2」の%1</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Lowest version</source>
        <translation>最小バージョン</translation>
    </message>
    <message>
        <source>Highest version</source>
        <translation>最大バージョン</translation>
    </message>
    <message>
        <source>%1 of robot requirement %2</source>
        <translation>ロボット要件 %2 の%1</translation>
    </message>
    <message>
        <source>%1 of Brio requirement %2</source>
        <translation>Brio の要件 %2 の%1</translation>
    </message>
    <message>
        <source>User requests</source>
        <translation>ユーザーからの要求</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>権限</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>条件</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>Trigger sentences</source>
        <translation>トリガー文</translation>
    </message>
    <message>
        <source>Loading responses</source>
        <translation>読み込み時の応答</translation>
    </message>
    <message>
        <source>Autostart</source>
        <translation>自動起動</translation>
    </message>
    <message>
        <source>Supported languages</source>
        <translation>対応言語</translation>
    </message>
    <message>
        <source>Description languages</source>
        <translation>説明言語</translation>
    </message>
    <message>
        <source>Robot requirements</source>
        <translation>ロボットの要件</translation>
    </message>
    <message>
        <source>Brio requirements</source>
        <translation>Brio の要件</translation>
    </message>
    <message>
        <source>Behaviors</source>
        <translation>ビヘイビア</translation>
    </message>
    <message>
        <source>Dialogs</source>
        <translation>ダイアログ</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>サービス</translation>
    </message>
    <message>
        <source>%1 “%2”</source>
        <translation>%1「%2」</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 for “%2”</source>
        <translation>%1 (目的: %2)</translation>
    </message>
    <message>
        <source>Correct the names of elements and attributes</source>
        <translation>要素と属性の名前を直す</translation>
    </message>
    <message>
        <source>Keep the current values and remove the comments</source>
        <translation>現在の値を残してコメントを削除</translation>
    </message>
    <message>
        <source>Unknown element &lt;%1&gt;%2</source>
        <translation>不明な要素 &lt;%1&gt;%2</translation>
    </message>
    <message>
        <source>The format has no such element here. It is preserved but ignored.</source>
        <translation>この場所にそのような要素は形式にありません。残されますが、無視されます。</translation>
    </message>
    <message>
        <source>Correct the name. Extensions by other tools should use their own namespace.</source>
        <translation>名前を直してください。ほかのツールの追加物は、それ専用の名前空間に置きます。</translation>
    </message>
    <message>
        <source>Unknown attribute &apos;%1&apos; of &lt;%3&gt;%2</source>
        <translation>&lt;%3&gt; の不明な属性 &apos;%1&apos;%2</translation>
    </message>
    <message>
        <source>The format has no such attribute here. It is preserved but ignored.</source>
        <translation>この場所にそのような属性は形式にありません。残されますが、無視されます。</translation>
    </message>
    <message>
        <source>Unresolved merge conflict.</source>
        <translation>マージの競合が解決されていません。</translation>
    </message>
    <message>
        <source>Both sides of a merge changed the field. The manifest contains one of the values, and a comment before it shows both.</source>
        <translation>マージの両側がこのフィールドを変更しました。マニフェストには一方の値があり、その前のコメントに両方があります。</translation>
    </message>
    <message>
        <source>Choose a value, then remove the comment.</source>
        <translation>値を選び、コメントを削除してください。</translation>
    </message>
    <message>
        <source>A later unit has another text for this field.</source>
        <translation>後の単位に、このフィールドの別のテキストがあります。</translation>
    </message>
    <message>
        <source>The package no longer has this behavior.</source>
        <translation>パッケージにこのビヘイビアはもうありません。</translation>
    </message>
    <message>
        <source>The source text has changed since the export.</source>
        <translation>書き出しのあとで原文が変わりました。</translation>
    </message>
    <message>
        <source>An item before this one has no text yet.</source>
        <translation>これより前の項目にまだテキストがありません。</translation>
    </message>
    <message>
        <source>Malformed speech script: %1</source>
        <translation>音声スクリプトの形式が正しくありません: %1</translation>
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
        <source>A document type declaration is not allowed.</source>
        <translation>文書型宣言は使えません。</translation>
    </message>
    <message>
        <source>Text is not allowed here.</source>
        <translation>ここにテキストは置けません。</translation>
    </message>
    <message>
        <source>The element &lt;%1&gt; is not allowed here.</source>
        <translation>要素 &lt;%1&gt; はここに置けません。</translation>
    </message>
    <message>
        <source>The root element is &lt;%1&gt; instead of &lt;xliff&gt;.</source>
        <translation>ルート要素が &lt;xliff&gt; ではなく &lt;%1&gt; です。</translation>
    </message>
    <message>
        <source>This is XLIFF &quot;%1&quot; in the namespace &quot;%2&quot; rather than XLIFF 1.2.</source>
        <translation>XLIFF 1.2 ではなく、名前空間 &quot;%2&quot; の XLIFF &quot;%1&quot; です。</translation>
    </message>
    <message>
        <source>The element &lt;file&gt; lacks the attribute &quot;source-language&quot;.</source>
        <translation>要素 &lt;file&gt; に属性 &quot;source-language&quot; がありません。</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; has no element &lt;source&gt;.</source>
        <translation>単位 &quot;%1&quot; に要素 &lt;source&gt; がありません。</translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is not declared.</source>
        <translation>実体 &quot;%1&quot; は宣言されていません。</translation>
    </message>
    <message>
        <source>The placeholder &lt;%1&gt; lacks the attribute &quot;equiv-text&quot;, without which its text is unknown.</source>
        <translation>プレースホルダー &lt;%1&gt; に属性 &quot;equiv-text&quot; がなく、そのテキストが分かりません。</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; has no path of a text in a package.</source>
        <translation>単位 &quot;%1&quot; に、パッケージのテキストへのパスがありません。</translation>
    </message>
    <message>
        <source>The file is larger than 256 MiB.</source>
        <translation>ファイルが 256 MiB を超えています。</translation>
    </message>
    <message>
        <source>The language is the source language too.</source>
        <translation>言語が原文の言語と同じです。</translation>
    </message>
    <message>
        <source>The source language has no such text.</source>
        <translation>原文の言語にこのテキストはありません。</translation>
    </message>
    <message>
        <source>This is a speech script: keep the markup in angle brackets, and translate the text around it.</source>
        <translation>これは音声スクリプトです。山括弧の中のマークアップはそのままにし、周りのテキストを訳してください。</translation>
    </message>
    <message>
        <source>A tag is longer than 64 KiB.</source>
        <translation>タグが 64 KiB を超えています。</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1を追加</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1を削除</translation>
    </message>
    <message>
        <source>The package replaced</source>
        <translation>パッケージを置き換え</translation>
    </message>
    <message>
        <source>%1 replaced</source>
        <translation>%1を置き換え</translation>
    </message>
    <message>
        <source>%1 renamed to “%2”</source>
        <translation>%1の名前を「%2」に変更</translation>
    </message>
    <message>
        <source>%1 changed from %2 to %3</source>
        <translation>%1を%2から%3に変更</translation>
    </message>
    <message>
        <source>%1 moved to position %2</source>
        <translation>%1を%2番目に移動</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>追加: %1</translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>追加先: %1</translation>
    </message>
    <message>
        <source>Replace the package</source>
        <translation>パッケージを置き換える</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>名前の変更: %1</translation>
    </message>
    <message>
        <source>Set %1</source>
        <translation>%1 を設定</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>削除: %1</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>移動: %1</translation>
    </message>
    <message>
        <source>%1 (and %2 more)</source>
        <translation>%1（ほか%2件）</translation>
    </message>
    <message>
        <source>en-US</source>
        <extracomment>The language of this translation, as RFC 5646 writes it.</extracomment>
        <translation>ja</translation>
    </message>
</context>
<context>
    <name>Zel::PackageStringCommand</name>
    <message>
        <source>installer</source>
        <translation>インストーラー</translation>
    </message>
    <message>
        <source>id</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>type version</source>
        <translation>種別バージョン</translation>
    </message>
    <message>
        <source>author</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>organization</source>
        <translation>組織</translation>
    </message>
    <message>
        <source>date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>channel</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Set application&apos;s %1</source>
        <translation>アプリケーションの%1を変更</translation>
    </message>
</context>
<context>
    <name>Zel::RobotRequirement</name>
    <message>
        <source>any model</source>
        <translation>全モデル</translation>
    </message>
</context>
</TS>
