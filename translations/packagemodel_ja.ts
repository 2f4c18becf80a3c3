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
        <source>The UID names the package on the robot and in every list of packages. It has 1 to 50 characters, each a lower-case letter from a to z, a digit, an underscore or a hyphen, and at least one of them is not a digit.</source>
        <translation>UID は、ロボット上およびすべてのパッケージ一覧でパッケージを表す名前です。a から z の小文字、数字、アンダースコア、ハイフンからなる 1 ～ 50 文字で、少なくとも 1 文字は数字以外です。</translation>
    </message>
    <message>
        <source>Write a UID such as my-app_2.</source>
        <translation>my-app_2 のような UID を入力してください。</translation>
    </message>
    <message>
        <source>A package says on which robots it runs, so that it is offered only to those. Without a robot requirement it is offered to none.</source>
        <translation>パッケージは、対応するロボットにだけ提供されるように、どのロボットで動作するかを示します。ロボットの要件がなければ、どのロボットにも提供されません。</translation>
    </message>
    <message>
        <source>Add a robot requirement with a robot model or family.</source>
        <translation>ロボットのモデルまたはファミリーを指定した要件を追加してください。</translation>
    </message>
    <message>
        <source>A robot requirement whose model is empty does not say which robot is meant, and its version ranges mean nothing.</source>
        <translation>モデルが空の要件は対象のロボットを示さず、そのバージョン範囲は意味を持ちません。</translation>
    </message>
    <message>
        <source>Choose a robot model or family for the requirement, or remove it.</source>
        <translation>要件のロボットのモデルまたはファミリーを選ぶか、要件を削除してください。</translation>
    </message>
    <message>
        <source>The highest accepted body version is less than the lowest, so that no robot can meet the requirement.</source>
        <translation>受け入れるボディの最大バージョンが最小バージョンより小さいため、どのロボットも要件を満たせません。</translation>
    </message>
    <message>
        <source>Raise or clear the maximum, or lower the minimum. An empty maximum means that there is no upper bound.</source>
        <translation>最大値を上げるか空にするか、最小値を下げてください。最大値が空の場合、上限はありません。</translation>
    </message>
    <message>
        <source>The highest accepted head version is less than the lowest, so that no robot can meet the requirement.</source>
        <translation>受け入れるヘッドの最大バージョンが最小バージョンより小さいため、どのロボットも要件を満たせません。</translation>
    </message>
    <message>
        <source>A package says which versions of the Brio middleware it runs on, so that it is not installed where it cannot start.</source>
        <translation>パッケージは、起動できない環境にインストールされないように、ミドルウェア Brio のどのバージョンで動作するかを示します。</translation>
    </message>
    <message>
        <source>Add a Brio requirement with the lowest version that the package was tried on.</source>
        <translation>パッケージの動作を確認した最も低いバージョンで Brio の要件を追加してください。</translation>
    </message>
    <message>
        <source>A Brio requirement has a lowest version; only the highest may be left open. Requirements after the first one without a minimum are not checked.</source>
        <translation>Brio の要件には最小バージョンが必要で、省略できるのは最大バージョンだけです。最小バージョンのない最初の要件より後の要件は検査されません。</translation>
    </message>
    <message>
        <source>Set the minimal version of the requirement.</source>
        <translation>要件の最小バージョンを設定してください。</translation>
    </message>
    <message>
        <source>The maximal Brio version is less than the minimal one, so that no robot can meet the requirement.</source>
        <translation>Brio の最大バージョンが最小バージョンより小さいため、どのロボットも要件を満たせません。</translation>
    </message>
    <message>
        <source>The package supports the default language and has no name in it. That name also stands in for those that are missing in other languages; without it, users see the UID.</source>
        <translation>パッケージは既定の言語に対応していますが、その言語の名前がありません。この名前は、他の言語で欠けている名前の代わりにもなります。ない場合、ユーザーには UID が表示されます。</translation>
    </message>
    <message>
        <source>Write a name in the default language.</source>
        <translation>既定の言語で名前を入力してください。</translation>
    </message>
    <message>
        <source>The package supports a language and has no name in it. Users of that language see the name in the default language, or the UID.</source>
        <translation>パッケージが対応している言語の名前がありません。その言語のユーザーには、既定の言語の名前または UID が表示されます。</translation>
    </message>
    <message>
        <source>Write a name in the language, or stop supporting it.</source>
        <translation>その言語で名前を入力するか、その言語への対応をやめてください。</translation>
    </message>
    <message>
        <source>The package supports a language and has no description in it. Users of that language see the description in the default language, or none.</source>
        <translation>パッケージが対応している言語の説明がありません。その言語のユーザーには、既定の言語の説明が表示されるか、何も表示されません。</translation>
    </message>
    <message>
        <source>Write a description in the language, or stop supporting it.</source>
        <translation>その言語で説明を入力するか、その言語への対応をやめてください。</translation>
    </message>
    <message>
        <source>A behavior that can be started by a sentence in one language can be started so in every language that the package supports; otherwise it is out of reach for some users.</source>
        <translation>ある言語の文で開始できるビヘイビアは、パッケージが対応するすべての言語で同じように開始できる必要があります。そうでないと、一部のユーザーが利用できません。</translation>
    </message>
    <message>
        <source>Write at least one trigger sentence in the language, or remove those in all languages.</source>
        <translation>その言語でトリガー文を少なくとも 1 つ入力するか、すべての言語のトリガー文を削除してください。</translation>
    </message>
    <message>
        <source>The value is of another type.</source>
        <translation>値の種類が違います。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is there already.</source>
        <translation>「%1」は既にあります。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is taken.</source>
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
        <source>The text holds half of a surrogate pair, which a manifest cannot hold.</source>
        <translation>テキストに、マニフェストに保存できない不完全なサロゲートペアが含まれています。</translation>
    </message>
    <message>
        <source>The text holds the character U+%1, which a manifest cannot hold.</source>
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
        <source>There is no package to be edited.</source>
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
        <source>The format %1 is not known.</source>
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
        <source>There is none.</source>
        <translation>ありません。</translation>
    </message>
    <message>
        <source>It is written &apos;%1%2&apos;.</source>
        <translation>&apos;%1%2&apos; と書きます。</translation>
    </message>
    <message>
        <source>The path is empty.</source>
        <translation>パスが空です。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither true nor false.</source>
        <translation>&apos;%1&apos; は true でも false でもありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a version: numbers with dots between them, as in 2.1.</source>
        <translation>&apos;%1&apos; はバージョンではありません。2.1 のように数字を点で区切ります。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no entry with its fields.</source>
        <translation>&apos;%1&apos; はフィールドを持つ項目ではありません。</translation>
    </message>
    <message>
        <source>; available: %1.</source>
        <translation>。使えるのは %1 です。</translation>
    </message>
    <message>
        <source>%1 of “%2”</source>
        <translation>「%2」の%1</translation>
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
        <source>Model</source>
        <translation>モデル</translation>
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
