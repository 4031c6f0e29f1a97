<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>velor::ColorPalette</name>
    <message>
        <source>Recent</source>
        <translation>最近使用</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>自訂...</translation>
    </message>
</context>
<context>
    <name>velor::CoolBar</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
</context>
<context>
    <name>velor::FormattingBar</name>
    <message>
        <source>Block Format</source>
        <translation>段落格式</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>字型大小</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字型</translation>
    </message>
    <message>
        <source>Formatting</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>文字顏色</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>背景顏色</translation>
    </message>
</context>
<context>
    <name>velor::ManualWindow</name>
    <message>
        <source>Velor Web Creator Manual</source>
        <translation>Velor Web Creator 使用手冊</translation>
    </message>
    <message>
        <source>Words to find in the manual</source>
        <translation>要在使用手冊中尋找的字詞</translation>
    </message>
    <message>
        <source>Find in the manual</source>
        <translation>在使用手冊中尋找</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>章節</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>使用手冊</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>導覽</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一頁</translation>
    </message>
    <message>
        <source>Back to the place before (Alt+Left)</source>
        <translation>回到前一個位置 (Alt+Left)</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>下一頁</translation>
    </message>
    <message>
        <source>Forward again (Alt+Right)</source>
        <translation>再次前進 (Alt+Right)</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>目錄</translation>
    </message>
    <message>
        <source>The first page</source>
        <translation>首頁</translation>
    </message>
    <message>
        <source>Places found</source>
        <translation>找到的位置</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>沒有找到任何項目</translation>
    </message>
</context>
<context>
    <name>velor::MfrmProgram</name>
    <message>
        <source>Pages</source>
        <translation>網頁</translation>
    </message>
    <message>
        <source>Project pages</source>
        <translation>專案網頁</translation>
    </message>
    <message>
        <source>Find Command</source>
        <translation>尋找指令</translation>
    </message>
    <message>
        <source>Words of the command</source>
        <translation>指令的字詞</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>指令</translation>
    </message>
    <message>
        <source>Recent Files</source>
        <translation>最近使用的檔案</translation>
    </message>
    <message>
        <source>Words of the file&apos;s path</source>
        <translation>檔案路徑的字詞</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>檔案</translation>
    </message>
</context>
<context>
    <name>velor::PageArea</name>
    <message>
        <source>New Document (Ctrl+N)  or  Open (Ctrl+O)</source>
        <translation>新增文件 (Ctrl+N)  或  開啟 (Ctrl+O)</translation>
    </message>
</context>
<context>
    <name>velor::PageChooser</name>
    <message>
        <source>Project pages</source>
        <translation>專案網頁</translation>
    </message>
</context>
<context>
    <name>velor::PageTabs</name>
    <message>
        <source>Read-only</source>
        <translation>唯讀</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>未儲存的變更</translation>
    </message>
</context>
<context>
    <name>velor::RecentFiles</name>
    <message>
        <source>No file was opened yet</source>
        <translation>尚未開啟任何檔案</translation>
    </message>
</context>
<context>
    <name>velor::WebBrowser</name>
    <message>
        <source>The preview downloads nothing: %1</source>
        <translation>預覽不會下載任何檔案：%1</translation>
    </message>
    <message>
        <source>Outside of the site and not opened: %1</source>
        <translation>位於網站之外，未開啟：%1</translation>
    </message>
    <message>
        <source>The page&apos;s process has ended. Refresh shows the page again.</source>
        <translation>網頁的處理程序已結束。「重新整理」可再次顯示網頁。</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>正在開啟 %1</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>%1 could not be opened</source>
        <translation>無法開啟 %1</translation>
    </message>
    <message>
        <source>Outside of the site and not shown: %1</source>
        <translation>位於網站之外，未顯示：%1</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> 以及其他 %1 個</translation>
    </message>
    <message>
        <source>No mail program is set up here to write to %1</source>
        <translation>此處未設定可寫信給 %1 的郵件程式</translation>
    </message>
    <message>
        <source>No program is set up here to open %1</source>
        <translation>此處未設定可開啟 %1 的程式</translation>
    </message>
</context>
<context>
    <name>velor::Words</name>
    <message>
        <source>The browser engine&apos;s sandbox is off: preview only pages that you trust.</source>
        <translation>瀏覽器引擎的沙箱已關閉：請只預覽您信任的網頁。</translation>
    </message>
    <message>
        <source>the setting %1 in %2 is &quot;%3&quot;; &quot;%4&quot; counts until it is mended</source>
        <translation>%2 中的設定 %1 為「%3」；在修正之前以「%4」為準</translation>
    </message>
    <message>
        <source>%1

Run-time error %2 in %3.</source>
        <translation>%1

在 %3 中發生執行階段錯誤 %2。</translation>
    </message>
    <message>
        <source>

The program has to end.</source>
        <translation>

程式必須結束。</translation>
    </message>
    <message>
        <source>The Database Path of Vitrine not found. Please provide the Path</source>
        <translation>找不到 Vitrine 的資料庫路徑。請提供路徑</translation>
    </message>
    <message>
        <source>The Database Path of Vitrine not Found. Please provide the path</source>
        <translation>找不到 Vitrine 的資料庫路徑。請提供路徑</translation>
    </message>
    <message>
        <source>The Path of Image Folder is not found.Please provide the path</source>
        <translation>找不到圖片資料夾的路徑。請提供路徑</translation>
    </message>
    <message>
        <source>Database(*.mdb;)|*.mdb</source>
        <translation>資料庫(*.mdb;)|*.mdb</translation>
    </message>
    <message>
        <source>Path not Found</source>
        <translation>找不到路徑</translation>
    </message>
    <message>
        <source>HTML Files *.htm,*.html|*.htm;*.html</source>
        <translation>HTML 檔案 *.htm,*.html|*.htm;*.html</translation>
    </message>
    <message>
        <source>%1 could not be opened: %2</source>
        <translation>無法開啟 %1：%2</translation>
    </message>
    <message>
        <source>There is no page to save</source>
        <translation>沒有可儲存的網頁</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>已儲存 %1</translation>
    </message>
    <message>
        <source>The source was applied to the page. Saved %1</source>
        <translation>原始碼已套用到網頁。已儲存 %1</translation>
    </message>
    <message>
        <source>There is no page to put something into</source>
        <translation>沒有可放入內容的網頁</translation>
    </message>
    <message>
        <source>There is no text to search</source>
        <translation>沒有可搜尋的文字</translation>
    </message>
    <message>
        <source>%1 could not be opened: too many pages are open</source>
        <translation>無法開啟 %1：開啟的網頁太多</translation>
    </message>
    <message>
        <source>Picture file</source>
        <translation>圖片檔</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Pages that are opened from now on</source>
        <translation>今後開啟的網頁</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>顯示細節(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Snap to grid</source>
        <translation>貼齊格線(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Forget the inspected element with its page</source>
        <translation>隨網頁捨棄已檢視的元素記錄(&amp;F)</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>原始碼</translation>
    </message>
    <message>
        <source>&amp;Wrap long lines</source>
        <translation>長行自動換行(&amp;W)</translation>
    </message>
    <message>
        <source>Pictures from outside the site</source>
        <translation>來自網站之外的圖片</translation>
    </message>
    <message>
        <source>&amp;Copy them into the site</source>
        <translation>將圖片複製到網站中(&amp;C)</translation>
    </message>
    <message>
        <source>Keep place, &amp;time and camera in copies</source>
        <translation>在複本中保留地點、時間與相機資訊(&amp;T)</translation>
    </message>
    <message>
        <source>Write pasted photos as We&amp;bP</source>
        <translation>將貼上的相片寫成 WebP(&amp;B)</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>選單</translation>
    </message>
    <message>
        <source>From the next start on</source>
        <translation>下次啟動後生效</translation>
    </message>
    <message>
        <source>&amp;Keep template signs whole</source>
        <translation>保持範本標記完整(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Published behaviour only (no menu Tools)</source>
        <translation>僅限原版功能，無「工具」選單(&amp;P)</translation>
    </message>
    <message>
        <source>PublishedOnly=False in %1 brings the menu back.</source>
        <translation>在 %1 中設定 PublishedOnly=False 可恢復此選單。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Style:</source>
        <translation>樣式:</translation>
    </message>
    <message>
        <source>Picture file:</source>
        <translation>圖片檔:</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>語言(&amp;L):</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>與桌面相同</translation>
    </message>
    <message>
        <source>That file cannot be shown as a picture.</source>
        <translation>該檔案無法顯示為圖片。</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存新檔</translation>
    </message>
    <message>
        <source>Project Manager</source>
        <translation>專案管理員</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪下</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼上</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>表格</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>圖片</translation>
    </message>
    <message>
        <source>Anchor</source>
        <translation>錨點</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>文字:</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>框線:</translation>
    </message>
    <message>
        <source>Chosen item:</source>
        <translation>選取的項目:</translation>
    </message>
    <message>
        <source>Text of the chosen item:</source>
        <translation>選取項目的文字:</translation>
    </message>
    <message>
        <source>File (&amp;F)</source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>page create</source>
        <translation>網頁 建立 新建</translation>
    </message>
    <message>
        <source>New Document(&amp;N)</source>
        <translation>新增文件(&amp;N)</translation>
    </message>
    <message>
        <source>file load</source>
        <translation>檔案 載入 讀取</translation>
    </message>
    <message>
        <source>Open... (&amp;O)</source>
        <translation>開啟...(&amp;O)</translation>
    </message>
    <message>
        <source>write keep</source>
        <translation>寫入 保存 存檔</translation>
    </message>
    <message>
        <source>Save (&amp;S)</source>
        <translation>儲存(&amp;S)</translation>
    </message>
    <message>
        <source>copy rename</source>
        <translation>複製 重新命名 副本</translation>
    </message>
    <message>
        <source>Save As... (&amp;A)</source>
        <translation>另存新檔...(&amp;A)</translation>
    </message>
    <message>
        <source>quit close end</source>
        <translation>離開 關閉 結束 退出</translation>
    </message>
    <message>
        <source>Exit (&amp;X)</source>
        <translation>結束(&amp;X)</translation>
    </message>
    <message>
        <source>Edit (&amp;E)</source>
        <translation>編輯(&amp;E)</translation>
    </message>
    <message>
        <source>take back</source>
        <translation>取消 回復 還原 上一步</translation>
    </message>
    <message>
        <source>Undo (&amp;U)</source>
        <translation>復原(&amp;U)</translation>
    </message>
    <message>
        <source>again repeat</source>
        <translation>再次 重複 取消復原</translation>
    </message>
    <message>
        <source>Redo (&amp;R)</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Cut</source>
        <translation>剪下(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>複製(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼上(&amp;P)</translation>
    </message>
    <message>
        <source>remove clear erase</source>
        <translation>移除 清除 去除</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>刪除(&amp;D)</translation>
    </message>
    <message>
        <source>everything mark</source>
        <translation>全部 所有 標記 選取</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>全選(&amp;S)</translation>
    </message>
    <message>
        <source>View (&amp;V)</source>
        <translation>檢視(&amp;V)</translation>
    </message>
    <message>
        <source>Menu Style (&amp;M)</source>
        <translation>選單樣式(&amp;M)</translation>
    </message>
    <message>
        <source>Menu Option... (&amp;O)</source>
        <translation>選單選項...(&amp;O)</translation>
    </message>
    <message>
        <source>Customize... (&amp;C)</source>
        <translation>自訂...(&amp;C)</translation>
    </message>
    <message>
        <source>Sky Blue</source>
        <translation>天空藍</translation>
    </message>
    <message>
        <source>Clear XP Style</source>
        <translation>清爽 XP 樣式</translation>
    </message>
    <message>
        <source>site web pages catalogue</source>
        <translation>網站 網頁 目錄檔 專案</translation>
    </message>
    <message>
        <source>Show Detail (&amp;D)</source>
        <translation>顯示細節(&amp;D)</translation>
    </message>
    <message>
        <source>Insert (&amp;I)</source>
        <translation>插入(&amp;I)</translation>
    </message>
    <message>
        <source>picture photo graphic</source>
        <translation>圖片 相片 照片 圖形 影像</translation>
    </message>
    <message>
        <source>link address url</source>
        <translation>連結 位址 網址 url</translation>
    </message>
    <message>
        <source>Hyperlink</source>
        <translation>超連結</translation>
    </message>
    <message>
        <source>Table (&amp;A)</source>
        <translation>表格(&amp;A)</translation>
    </message>
    <message>
        <source>grid rows columns cells</source>
        <translation>格線 列 欄 儲存格</translation>
    </message>
    <message>
        <source>Insert Table</source>
        <translation>插入表格</translation>
    </message>
    <message>
        <source>Window (&amp;W)</source>
        <translation>視窗(&amp;W)</translation>
    </message>
    <message>
        <source>Cascade (&amp;C)</source>
        <translation>重疊排列(&amp;C)</translation>
    </message>
    <message>
        <source>above stacked tile</source>
        <translation>上下 堆疊 並排</translation>
    </message>
    <message>
        <source>Horizontal (&amp;H)</source>
        <translation>水平並排(&amp;H)</translation>
    </message>
    <message>
        <source>beside side tile</source>
        <translation>左右 並列 並排</translation>
    </message>
    <message>
        <source>Vertical (&amp;V)</source>
        <translation>垂直並排(&amp;V)</translation>
    </message>
    <message>
        <source>Tools (&amp;T)</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>Find Command... (&amp;F)</source>
        <translation>尋找指令...(&amp;F)</translation>
    </message>
    <message>
        <source>Recent Files (&amp;R)</source>
        <translation>最近使用的檔案(&amp;R)</translation>
    </message>
    <message>
        <source>search words text look</source>
        <translation>搜尋 查詢 字詞 文字</translation>
    </message>
    <message>
        <source>Find... (&amp;N)</source>
        <translation>尋找...(&amp;N)</translation>
    </message>
    <message>
        <source>exchange change words text</source>
        <translation>替換 更換 變更 字詞 文字</translation>
    </message>
    <message>
        <source>Replace... (&amp;P)</source>
        <translation>取代...(&amp;P)</translation>
    </message>
    <message>
        <source>search again</source>
        <translation>再次 搜尋 往下</translation>
    </message>
    <message>
        <source>Find Next (&amp;G)</source>
        <translation>尋找下一個(&amp;G)</translation>
    </message>
    <message>
        <source>search again back</source>
        <translation>再次 搜尋 往回</translation>
    </message>
    <message>
        <source>Find Previous (&amp;U)</source>
        <translation>尋找上一個(&amp;U)</translation>
    </message>
    <message>
        <source>hyperlink address url</source>
        <translation>超連結 位址 網址 url</translation>
    </message>
    <message>
        <source>Link... (&amp;L)</source>
        <translation>連結...(&amp;L)</translation>
    </message>
    <message>
        <source>open go preview</source>
        <translation>開啟 前往 預覽</translation>
    </message>
    <message>
        <source>Follow Link (&amp;K)</source>
        <translation>前往連結(&amp;K)</translation>
    </message>
    <message>
        <source>anchor bookmark id name</source>
        <translation>錨點 書籤 識別碼 名稱 id</translation>
    </message>
    <message>
        <source>Insert Target... (&amp;T)</source>
        <translation>插入目標...(&amp;T)</translation>
    </message>
    <message>
        <source>film movie mp4</source>
        <translation>影片 電影 視訊 mp4</translation>
    </message>
    <message>
        <source>Insert Video... (&amp;V)</source>
        <translation>插入影片...(&amp;V)</translation>
    </message>
    <message>
        <source>plain unformatted only</source>
        <translation>純文字 無格式 只有文字</translation>
    </message>
    <message>
        <source>Paste as Text (&amp;X)</source>
        <translation>貼上為文字(&amp;X)</translation>
    </message>
    <message>
        <source>tabs columns spreadsheet</source>
        <translation>定位字元 欄 試算表</translation>
    </message>
    <message>
        <source>Paste as Table (&amp;B)</source>
        <translation>貼上為表格(&amp;B)</translation>
    </message>
    <message>
        <source>notes plain md</source>
        <translation>筆記 純文字 md</translation>
    </message>
    <message>
        <source>Paste as Markdown (&amp;M)</source>
        <translation>貼上為 Markdown(&amp;M)</translation>
    </message>
    <message>
        <source>data base64 images</source>
        <translation>資料 base64 圖片 內嵌</translation>
    </message>
    <message>
        <source>Take Embedded Pictures Out into Files (&amp;E)</source>
        <translation>將內嵌圖片取出為檔案(&amp;E)</translation>
    </message>
    <message>
        <source>line</source>
        <translation>行 橫列</translation>
    </message>
    <message>
        <source>Insert Row &amp;Above</source>
        <translation>在上方插入列(&amp;A)</translation>
    </message>
    <message>
        <source>Insert Row &amp;Below</source>
        <translation>在下方插入列(&amp;B)</translation>
    </message>
    <message>
        <source>Insert Column &amp;Left</source>
        <translation>在左方插入欄(&amp;L)</translation>
    </message>
    <message>
        <source>Colume</source>
        <translation>直欄 欄位</translation>
    </message>
    <message>
        <source>Insert Column &amp;Right</source>
        <translation>在右方插入欄(&amp;R)</translation>
    </message>
    <message>
        <source>remove</source>
        <translation>移除 去除</translation>
    </message>
    <message>
        <source>&amp;Delete Row</source>
        <translation>刪除列(&amp;D)</translation>
    </message>
    <message>
        <source>Delete &amp;Column</source>
        <translation>刪除欄(&amp;C)</translation>
    </message>
    <message>
        <source>Delete &amp;Table</source>
        <translation>刪除表格(&amp;T)</translation>
    </message>
    <message>
        <source>join</source>
        <translation>合併 結合</translation>
    </message>
    <message>
        <source>&amp;Merge Cells</source>
        <translation>合併儲存格(&amp;M)</translation>
    </message>
    <message>
        <source>divide</source>
        <translation>拆分 切割 分割</translation>
    </message>
    <message>
        <source>&amp;Split Cell</source>
        <translation>分割儲存格(&amp;S)</translation>
    </message>
    <message>
        <source>mark</source>
        <translation>標記 選取 反白</translation>
    </message>
    <message>
        <source>Select C&amp;ell</source>
        <translation>選取儲存格(&amp;E)</translation>
    </message>
    <message>
        <source>Select R&amp;ow</source>
        <translation>選取列(&amp;O)</translation>
    </message>
    <message>
        <source>Select Col&amp;umn</source>
        <translation>選取欄(&amp;U)</translation>
    </message>
    <message>
        <source>Select Table</source>
        <translation>選取表格</translation>
    </message>
    <message>
        <source>Move Row Up</source>
        <translation>將列上移</translation>
    </message>
    <message>
        <source>Move Row Do&amp;wn</source>
        <translation>將列下移(&amp;W)</translation>
    </message>
    <message>
        <source>Move Column Left</source>
        <translation>將欄左移</translation>
    </message>
    <message>
        <source>Move Column Right</source>
        <translation>將欄右移</translation>
    </message>
    <message>
        <source>distribute</source>
        <translation>平均 分配 等寬</translation>
    </message>
    <message>
        <source>Equal Column W&amp;idths</source>
        <translation>平均分配欄寬(&amp;I)</translation>
    </message>
    <message>
        <source>html long break</source>
        <translation>html 長行 換行 斷行</translation>
    </message>
    <message>
        <source>Wrap Source Lines (&amp;W)</source>
        <translation>原始碼自動換行(&amp;W)</translation>
    </message>
    <message>
        <source>letter folder map windows</source>
        <translation>代號 資料夾 對應 windows</translation>
    </message>
    <message>
        <source>Drives... (&amp;D)</source>
        <translation>磁碟機...(&amp;D)</translation>
    </message>
    <message>
        <source>options preferences colours</source>
        <translation>選項 偏好設定 顏色</translation>
    </message>
    <message>
        <source>Settings... (&amp;S)</source>
        <translation>設定...(&amp;S)</translation>
    </message>
    <message>
        <source>Help (&amp;H)</source>
        <translation>說明(&amp;H)</translation>
    </message>
    <message>
        <source>version program</source>
        <translation>版本 程式</translation>
    </message>
    <message>
        <source>manual guide</source>
        <translation>手冊 指南 使用說明</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>Properties...</source>
        <translation>屬性...</translation>
    </message>
    <message>
        <source>Page Properties</source>
        <translation>網頁屬性</translation>
    </message>
    <message>
        <source>picture alternative</source>
        <translation>圖片 替代文字</translation>
    </message>
    <message>
        <source>Image Properties</source>
        <translation>圖片屬性</translation>
    </message>
    <message>
        <source>caption border</source>
        <translation>標題 框線 邊框</translation>
    </message>
    <message>
        <source>Table Properties</source>
        <translation>表格屬性</translation>
    </message>
    <message>
        <source>cell width colour</source>
        <translation>儲存格 寬度 顏色</translation>
    </message>
    <message>
        <source>Table Cell Properties</source>
        <translation>表格儲存格屬性</translation>
    </message>
    <message>
        <source>link</source>
        <translation>連結</translation>
    </message>
    <message>
        <source>Hyperlink Properties</source>
        <translation>超連結屬性</translation>
    </message>
    <message>
        <source>Fonts Properties</source>
        <translation>字型屬性</translation>
    </message>
    <message>
        <source>Absolute Position</source>
        <translation>絕對位置</translation>
    </message>
    <message>
        <source>Show Detail</source>
        <translation>顯示細節</translation>
    </message>
    <message>
        <source>Snap to Grid</source>
        <translation>貼齊格線</translation>
    </message>
    <message>
        <source>Insert Custom HTML</source>
        <translation>插入自訂 HTML</translation>
    </message>
    <message>
        <source>Table...</source>
        <translation>表格...</translation>
    </message>
    <message>
        <source>Insert Colume</source>
        <translation>插入欄</translation>
    </message>
    <message>
        <source>Insert Row</source>
        <translation>插入列</translation>
    </message>
    <message>
        <source>Merge Cells</source>
        <translation>合併儲存格</translation>
    </message>
    <message>
        <source>Split Cell</source>
        <translation>分割儲存格</translation>
    </message>
    <message>
        <source>Absolute object...</source>
        <translation>絕對定位物件...</translation>
    </message>
    <message>
        <source>Bring to Front</source>
        <translation>移到最上層</translation>
    </message>
    <message>
        <source>Bring Foreward</source>
        <translation>上移一層</translation>
    </message>
    <message>
        <source>Bring above text</source>
        <translation>移到文字上方</translation>
    </message>
    <message>
        <source>Send to Back</source>
        <translation>移到最下層</translation>
    </message>
    <message>
        <source>Send Backward</source>
        <translation>下移一層</translation>
    </message>
    <message>
        <source>Send below text</source>
        <translation>移到文字下方</translation>
    </message>
    <message>
        <source>Get Element TagName</source>
        <translation>取得元素標籤名稱</translation>
    </message>
    <message>
        <source>Delete Record</source>
        <translation>刪除記錄</translation>
    </message>
    <message>
        <source>The manual is not installed</source>
        <translation>未安裝使用手冊</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(無名稱)</translation>
    </message>
    <message>
        <source>Charset and line ends</source>
        <translation>字元集與行尾</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be opened: %2</source>
        <translation>無法開啟目錄檔 %1：%2</translation>
    </message>
    <message>
        <source>it is empty; put a copy of the catalogue in its place</source>
        <translation>它是空的；請換上目錄檔的複本</translation>
    </message>
    <message>
        <source>it is no database; a catalogue is a Jet 4 file of the catalogue program, or an SQLite file</source>
        <translation>它不是資料庫；目錄檔應為目錄程式的 Jet 4 檔案，或 SQLite 檔案</translation>
    </message>
    <message>
        <source>rows of %1 can be neither added nor deleted in %2</source>
        <translation>在 %2 中，%1 的列既不能新增也不能刪除</translation>
    </message>
    <message>
        <source>the connection is open already</source>
        <translation>連線已經開啟</translation>
    </message>
    <message>
        <source>The catalogue %1 is not whole: %2. What is left of it is shown, and nothing can be changed in it; put a whole copy in its place</source>
        <translation>目錄檔 %1 不完整：%2。此處顯示其剩餘的內容，且無法變更其中任何內容；請換上完整的複本</translation>
    </message>
    <message>
        <source>the connection is not open</source>
        <translation>連線尚未開啟</translation>
    </message>
    <message>
        <source>the recordset is open already</source>
        <translation>資料錄集已經開啟</translation>
    </message>
    <message>
        <source>the recordset is not open</source>
        <translation>資料錄集尚未開啟</translation>
    </message>
    <message>
        <source>past the last row</source>
        <translation>超過最後一列</translation>
    </message>
    <message>
        <source>no such column</source>
        <translation>沒有這個欄位</translation>
    </message>
    <message>
        <source>the catalogue %1: %2</source>
        <translation>目錄檔 %1：%2</translation>
    </message>
    <message>
        <source>the catalogue %1 is locked by %2; close it there, or wait until it has written, and try again</source>
        <translation>目錄檔 %1 已被 %2 鎖定；請在該處關閉它，或等到寫入完成後再試一次</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>另一個程式</translation>
    </message>
    <message>
        <source>not one statement: %1</source>
        <translation>不是單一陳述式：%1</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be opened: its list of tables is damaged</source>
        <translation>無法開啟目錄檔 %1：其資料表清單已損毀</translation>
    </message>
    <message>
        <source>the definition of the table %1 is damaged</source>
        <translation>資料表 %1 的定義已損毀</translation>
    </message>
    <message>
        <source>its last page is incomplete</source>
        <translation>它的最後一頁不完整</translation>
    </message>
    <message>
        <source>another program has changed the tables of %1; open it again</source>
        <translation>另一個程式變更了 %1 的資料表；請重新開啟</translation>
    </message>
    <message>
        <source>the catalogue %1 is open in another program and cannot be changed until that is closed: %2</source>
        <translation>目錄檔 %1 已在另一個程式中開啟，在該處關閉之前無法變更：%2</translation>
    </message>
    <message>
        <source>the catalogue %1 cannot be changed: %2</source>
        <translation>無法變更目錄檔 %1：%2</translation>
    </message>
    <message>
        <source>another program has changed %1 meanwhile</source>
        <translation>另一個程式在此期間變更了 %1</translation>
    </message>
    <message>
        <source>it is in the ACE format (.accdb, Access 2007 or later), which cannot be opened; save it in the format of Access 2002-2003 (.mdb) with the program that made it</source>
        <translation>它是 ACE 格式 (.accdb，Access 2007 或更新版本)，無法開啟；請用建立它的程式存成 Access 2002-2003 格式 (.mdb)</translation>
    </message>
    <message>
        <source>it is no database</source>
        <translation>它不是資料庫</translation>
    </message>
    <message>
        <source>it is in the Jet 3 format (Access 95 or 97), which cannot be opened; convert it to the format of Access 2000 or 2002-2003 (Jet 4)</source>
        <translation>它是 Jet 3 格式 (Access 95 或 97)，無法開啟；請轉換為 Access 2000 或 2002-2003 的格式 (Jet 4)</translation>
    </message>
    <message>
        <source>it is in version %1 of the Jet format, and only Jet 4 can be opened; convert it to the format of Access 2000 or 2002-2003</source>
        <translation>它是第 %1 版的 Jet 格式，而只有 Jet 4 可以開啟；請轉換為 Access 2000 或 2002-2003 的格式</translation>
    </message>
    <message>
        <source>it is protected by a password; remove the password with the program that set it</source>
        <translation>它受密碼保護；請用設定密碼的程式移除密碼</translation>
    </message>
    <message>
        <source>it is open in another program: %1</source>
        <translation>它已在另一個程式中開啟：%1</translation>
    </message>
    <message>
        <source>a change of %1 was interrupted and has to be undone first, but %2</source>
        <translation>%1 的變更曾遭中斷，必須先復原，但是%2</translation>
    </message>
    <message>
        <source>another program is just writing %1</source>
        <translation>另一個程式正在寫入 %1</translation>
    </message>
    <message>
        <source>The journal beside %1 is damaged. The file is left as it is; the journal is kept as %2.</source>
        <translation>%1 旁的日誌已損毀。檔案維持原狀；日誌保留為 %2。</translation>
    </message>
    <message>
        <source>A change of %1 was interrupted, and another program has written the file since. It is left as it is; what it held before is kept in %2.</source>
        <translation>%1 的變更曾遭中斷，而之後另一個程式寫入了該檔案。檔案維持現狀；先前的內容保留在 %2 中。</translation>
    </message>
    <message>
        <source>A change of %1 was interrupted; the file has been put back as it was before.</source>
        <translation>%1 的變更曾遭中斷；檔案已恢復為變更前的內容。</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%2 上的 %1</translation>
    </message>
    <message>
        <source>another program (its lock file %1 cannot be read)</source>
        <translation>另一個程式 (無法讀取其鎖定檔 %1)</translation>
    </message>
    <message>
        <source>the value that would be replaced is damaged</source>
        <translation>要取代的值已損毀</translation>
    </message>
    <message>
        <source>the column %1 of the table %2 shares its place with another</source>
        <translation>資料表 %2 的欄位 %1 與另一個欄位共用位置</translation>
    </message>
    <message>
        <source>the map of the pages with room of the table %1 is damaged</source>
        <translation>資料表 %1 的可用空間頁面配置表已損毀</translation>
    </message>
    <message>
        <source>the map of the free pages is damaged</source>
        <translation>閒置頁面的配置表已損毀</translation>
    </message>
    <message>
        <source>page %1 of the table %2 is marked as free</source>
        <translation>資料表 %2 的第 %1 頁被標示為閒置</translation>
    </message>
    <message>
        <source>rows of the table %1 that have moved are lost or doubled</source>
        <translation>資料表 %1 中移動過的列已遺失或重複</translation>
    </message>
    <message>
        <source>the map of the pages of the table %1 is damaged</source>
        <translation>資料表 %1 的頁面配置表已損毀</translation>
    </message>
    <message>
        <source>page %1 is no data page of the table %2, as it should be</source>
        <translation>第 %1 頁不是資料表 %2 的資料頁，但它應該是</translation>
    </message>
    <message>
        <source>page %1 of the table %2 is damaged</source>
        <translation>資料表 %2 的第 %1 頁已損毀</translation>
    </message>
    <message>
        <source>row %1 on page %2 of the table %3 is damaged</source>
        <translation>資料表 %3 第 %2 頁上的第 %1 列已損毀</translation>
    </message>
    <message>
        <source>the table %1 should have %2 rows, but %3 are there</source>
        <translation>資料表 %1 應有 %2 列，但實際有 %3 列</translation>
    </message>
    <message>
        <source>the column %1 of the table %2 cannot be set: %3</source>
        <translation>無法設定資料表 %2 的欄位 %1：%3</translation>
    </message>
    <message>
        <source>only text can be changed</source>
        <translation>只能變更文字</translation>
    </message>
    <message>
        <source>it is of fixed length</source>
        <translation>它的長度固定</translation>
    </message>
    <message>
        <source>it is in an index</source>
        <translation>它在索引中</translation>
    </message>
    <message>
        <source>the text has %1 characters, and %2 are the most</source>
        <translation>文字有 %1 個字元，而上限為 %2 個</translation>
    </message>
    <message>
        <source>the text holds a character that cannot be stored</source>
        <translation>文字含有無法儲存的字元</translation>
    </message>
    <message>
        <source>the text takes %1 bytes, and %2 are the most that are changed here</source>
        <translation>文字佔 %1 位元組，而此處可變更的上限為 %2 位元組</translation>
    </message>
    <message>
        <source>the row of the table %1 is no longer there</source>
        <translation>資料表 %1 的列已不存在</translation>
    </message>
    <message>
        <source>the row of the table %1 is damaged</source>
        <translation>資料表 %1 的列已損毀</translation>
    </message>
    <message>
        <source>a row of the table %1 would become too long</source>
        <translation>資料表 %1 的某一列會變得太長</translation>
    </message>
    <message>
        <source>a map of the database&apos;s pages is damaged</source>
        <translation>資料庫的頁面配置表已損毀</translation>
    </message>
    <message>
        <source>it is marked as read-only</source>
        <translation>它被標示為唯讀</translation>
    </message>
    <message>
        <source>it cannot be written (%1)</source>
        <translation>它無法寫入 (%1)</translation>
    </message>
    <message>
        <source>its folder cannot be written, where its safety copy would be kept (%1)</source>
        <translation>無法寫入它的資料夾，而備份複本要存放在該處 (%1)</translation>
    </message>
    <message>
        <source>another program removed %1</source>
        <translation>另一個程式移除了 %1</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>褐色</translation>
    </message>
    <message>
        <source>Olive green</source>
        <translation>橄欖綠</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>深綠色</translation>
    </message>
    <message>
        <source>Dark teal</source>
        <translation>深藍綠色</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>深藍色</translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation>靛藍色</translation>
    </message>
    <message>
        <source>Grey 80%</source>
        <translation>灰色 80%</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>深紅色</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>深黃色</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>綠色</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>藍綠色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>藍色</translation>
    </message>
    <message>
        <source>Blue grey</source>
        <translation>藍灰色</translation>
    </message>
    <message>
        <source>Grey 50%</source>
        <translation>灰色 50%</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>紅色</translation>
    </message>
    <message>
        <source>Light orange</source>
        <translation>淺橙色</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>萊姆色</translation>
    </message>
    <message>
        <source>Sea green</source>
        <translation>海綠色</translation>
    </message>
    <message>
        <source>Aqua</source>
        <translation>水藍色</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>淺藍色</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>紫羅蘭色</translation>
    </message>
    <message>
        <source>Grey 40%</source>
        <translation>灰色 40%</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>粉紅色</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>金色</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黃色</translation>
    </message>
    <message>
        <source>Bright green</source>
        <translation>鮮綠色</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <translation>青綠色</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>天空藍</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>梅紅色</translation>
    </message>
    <message>
        <source>Grey 25%</source>
        <translation>灰色 25%</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>玫瑰紅</translation>
    </message>
    <message>
        <source>Tan</source>
        <translation>棕黃色</translation>
    </message>
    <message>
        <source>Light yellow</source>
        <translation>淺黃色</translation>
    </message>
    <message>
        <source>Light green</source>
        <translation>淺綠色</translation>
    </message>
    <message>
        <source>Light turquoise</source>
        <translation>淺青綠色</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <translation>淡藍色</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>淡紫色</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Drives of Other Computers</source>
        <translation>其他電腦的磁碟機</translation>
    </message>
    <message>
        <source>Catalogues and pages from other computers name drives. Each drive listed here stands for a folder of this computer. A drive that is removed stays in use until the program ends.</source>
        <translation>來自其他電腦的目錄檔和網頁會提到磁碟機。此處列出的每個磁碟機都代表這部電腦上的一個資料夾。移除的磁碟機在程式結束前仍會繼續使用。</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>磁碟機</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>磁碟機</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Drive to add</source>
        <translation>要新增的磁碟機</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>新增...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>%1 (home)</source>
        <translation>%1 (家目錄)</translation>
    </message>
    <message>
        <source>Show hidden folders</source>
        <translation>顯示隱藏的資料夾</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>選取資料夾</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路徑</translation>
    </message>
    <message>
        <source>Type or paste a path</source>
        <translation>輸入或貼上路徑</translation>
    </message>
    <message>
        <source>Selected folder</source>
        <translation>選取的資料夾</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>E-mail :</source>
        <translation>電子郵件:</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>粗體</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜體</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>底線</translation>
    </message>
    <message>
        <source>Align Left</source>
        <translation>靠左對齊</translation>
    </message>
    <message>
        <source>Align Center</source>
        <translation>置中對齊</translation>
    </message>
    <message>
        <source>Align Right</source>
        <translation>靠右對齊</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>編號</translation>
    </message>
    <message>
        <source>Bullet</source>
        <translation>項目符號</translation>
    </message>
    <message>
        <source>Outdent</source>
        <translation>減少縮排</translation>
    </message>
    <message>
        <source>Indent</source>
        <translation>增加縮排</translation>
    </message>
    <message>
        <source>No picture stands in this page&apos;s text</source>
        <translation>此網頁的文字中沒有內嵌圖片</translation>
    </message>
    <message>
        <source>One picture of this page is a file now</source>
        <translation>此網頁有 1 張圖片現在是檔案了</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of this page are files now</source>
        <translation>
            <numerusform>此網頁有 %n 張圖片現在是檔案了</numerusform>
        </translation>
    </message>
    <message>
        <source>Up and Down bring earlier words</source>
        <translation>按向上鍵與向下鍵可叫出先前的字詞</translation>
    </message>
    <message>
        <source>Not a regular expression</source>
        <translation>不是正規表示式</translation>
    </message>
    <message numerus="yes">
        <source>%n replaced</source>
        <translation>
            <numerusform>已取代 %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>找不到</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>找到 %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>第 %1 個，共 %2 個</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>尋找與取代</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>尋找</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一個</translation>
    </message>
    <message>
        <source>Find Previous (Shift+F3)</source>
        <translation>尋找上一個 (Shift+F3)</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一個</translation>
    </message>
    <message>
        <source>Find Next (F3)</source>
        <translation>尋找下一個 (F3)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Close (Escape)</source>
        <translation>關閉 (Esc)</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>取代為</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>取代</translation>
    </message>
    <message>
        <source>Replace this one and find the next</source>
        <translation>取代此項並尋找下一個</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>全部取代</translation>
    </message>
    <message>
        <source>Replace every one as one step of Undo</source>
        <translation>全部取代，並作為一個復原步驟</translation>
    </message>
    <message>
        <source>Match Case</source>
        <translation>區分大小寫</translation>
    </message>
    <message>
        <source>Whole Words</source>
        <translation>全字拼寫須相符</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>更多選項</translation>
    </message>
    <message>
        <source>More options for finding</source>
        <translation>更多尋找選項</translation>
    </message>
    <message>
        <source>Ignore &amp;Accents</source>
        <translation>忽略重音符號(&amp;A)</translation>
    </message>
    <message>
        <source>Regular &amp;Expression</source>
        <translation>正規表示式(&amp;E)</translation>
    </message>
    <message>
        <source>In the &amp;Selection Only</source>
        <translation>僅限選取範圍(&amp;S)</translation>
    </message>
    <message>
        <source>Too many Pages are opened. Please close one or two File(s), and then try to open it.</source>
        <translation>開啟的網頁太多。請關閉一兩個檔案，然後再試著開啟。</translation>
    </message>
    <message>
        <source>%1 is open already</source>
        <translation>%1 已經開啟</translation>
    </message>
    <message>
        <source>Changed file</source>
        <translation>已變更的檔案</translation>
    </message>
    <message>
        <source>Keep Mine</source>
        <translation>保留我的版本</translation>
    </message>
    <message>
        <source>Go on with the page as it is here; saving it keeps the other version</source>
        <translation>繼續使用此處的網頁；儲存時會保留另一個版本</translation>
    </message>
    <message>
        <source>Take Theirs</source>
        <translation>採用對方的版本</translation>
    </message>
    <message>
        <source>Load the file again; Undo brings the page back as it is here</source>
        <translation>重新載入檔案；「復原」可找回此處的網頁</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>Show both side by side as source, with the differences marked</source>
        <translation>並排顯示兩者的原始碼，並標示差異</translation>
    </message>
    <message>
        <source>%1 was changed by another program and is loaded again; Undo brings back what was here</source>
        <translation>%1 已被其他程式變更，並已重新載入；「復原」可找回原本在此的內容</translation>
    </message>
    <message>
        <source>%1 was changed by another program, and has unsaved changes here.</source>
        <translation>%1 已被其他程式變更，而在此有未儲存的變更。</translation>
    </message>
    <message>
        <source>%1 is no longer there: it was removed, renamed, or its disk has gone. The page stays open, and saving it writes the file anew</source>
        <translation>%1 已不存在：它已被移除、重新命名，或其所在的磁碟已不在。網頁仍保持開啟，儲存時會重新寫入檔案</translation>
    </message>
    <message>
        <source>%1 is read-only now: Save As keeps your changes</source>
        <translation>%1 現在是唯讀：「另存新檔」可保留您的變更</translation>
    </message>
    <message>
        <source>%1 can be written now</source>
        <translation>現在可以寫入 %1 了</translation>
    </message>
    <message>
        <source>it is %1 now. The page stays as it is here</source>
        <translation>它現在為 %1。此處的網頁維持原狀</translation>
    </message>
    <message>
        <source>%1 is loaded again; Undo brings back what was here</source>
        <translation>%1 已重新載入；「復原」可找回原本在此的內容</translation>
    </message>
    <message>
        <source>Saving %1 keeps the other version among the replaced ones</source>
        <translation>儲存 %1 時會將另一個版本保留在被取代的版本中</translation>
    </message>
    <message>
        <source>%1 was changed by another program and cannot be read: %2</source>
        <translation>%1 已被其他程式變更，且無法讀取：%2</translation>
    </message>
    <message>
        <source>Please close the Code Editor first.</source>
        <translation>請先關閉原始碼編輯器。</translation>
    </message>
    <message>
        <source>Closing...</source>
        <translation>正在關閉...</translation>
    </message>
    <message>
        <source>You have made changes to this document. Do you want to save it?</source>
        <translation>您已變更此文件。要儲存嗎？</translation>
    </message>
    <message>
        <source>Closing doucment...</source>
        <translation>正在關閉文件...</translation>
    </message>
    <message>
        <source>%1 is %2. The file stays as it is</source>
        <translation>%1 為 %2。檔案維持原狀</translation>
    </message>
    <message>
        <source>the page was closed while it was loaded</source>
        <translation>網頁在載入期間被關閉</translation>
    </message>
    <message>
        <source> (Read-Only)</source>
        <translation> (唯讀)</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>未命名 %1</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2</source>
        <translation>無法儲存 %1：%2</translation>
    </message>
    <message>
        <source>%1 was written anew. What it held is kept as %2</source>
        <translation>已重新寫入 %1。原本的內容保留為 %2</translation>
    </message>
    <message>
        <source>%1 held another version. It was replaced and is kept as %2</source>
        <translation>%1 原為另一個版本。它已被取代，並保留為 %2</translation>
    </message>
    <message>
        <source>%1 was no longer there. It was written anew</source>
        <translation>%1 已不存在。已重新寫入</translation>
    </message>
    <message>
        <source>one link</source>
        <translation>1 個連結</translation>
    </message>
    <message numerus="yes">
        <source>%n links</source>
        <translation>
            <numerusform>%n 個連結</numerusform>
        </translation>
    </message>
    <message>
        <source>one picture</source>
        <translation>1 張圖片</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n 張圖片</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1和 %2</translation>
    </message>
    <message>
        <source>From the new folder %1 of this page would lead nowhere.</source>
        <translation>從此網頁的新資料夾來看，將有 %1失效。</translation>
    </message>
    <message>
        <source>Adapted, they lead to the files where these are now. Taken along, the pictures are copied beside the page, and the links are adapted.</source>
        <translation>選擇調整時，連結會指向檔案目前所在的位置。選擇一併帶走時，圖片會複製到網頁旁，連結也會隨之調整。</translation>
    </message>
    <message>
        <source>Adapt</source>
        <translation>調整</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>維持不變</translation>
    </message>
    <message>
        <source>Take Pictures Along</source>
        <translation>一併帶走圖片</translation>
    </message>
    <message>
        <source>Saved %1. One link in it leads to its file by its way from the page now</source>
        <translation>已儲存 %1。其中 1 個連結現在以相對於網頁的路徑指向檔案</translation>
    </message>
    <message numerus="yes">
        <source>Saved %1. %n links in it lead to files by their way from the page now</source>
        <translation>
            <numerusform>已儲存 %1。其中 %n 個連結現在以相對於網頁的路徑指向檔案</numerusform>
        </translation>
    </message>
    <message>
        <source>HTML File *.htm|*.htm</source>
        <translation>HTML 檔案 *.htm|*.htm</translation>
    </message>
    <message>
        <source>File saving error: %1</source>
        <translation>檔案儲存錯誤：%1</translation>
    </message>
    <message>
        <source>%1 is read-only. Do you want to save your changes under another name?</source>
        <translation>%1 是唯讀檔案。要以其他名稱儲存您的變更嗎？</translation>
    </message>
    <message>
        <source>The source of %1 cannot be kept as it was written, since %2.</source>
        <translation>%1 的原始碼無法保持原本的寫法，因為%2。</translation>
    </message>
    <message>
        <source>Saved anew, the whole file is written as the page is shown now. What it holds is kept among the replaced versions.
%1</source>
        <translation>重新寫入儲存時，整個檔案會依網頁目前的顯示內容寫入。檔案原有的內容會保留在被取代的版本中。
%1</translation>
    </message>
    <message>
        <source>Save Anew</source>
        <translation>重新寫入儲存</translation>
    </message>
    <message>
        <source>Save Under Another Name</source>
        <translation>以其他名稱儲存</translation>
    </message>
    <message>
        <source>The changes of %1 could not be kept for a recovery: %2</source>
        <translation>無法為救援保留 %1 的變更：%2</translation>
    </message>
    <message>
        <source>The page&apos;s HTML could not be read: %1</source>
        <translation>無法讀取網頁的 HTML：%1</translation>
    </message>
    <message>
        <source>The picture could not be put into the site: %1</source>
        <translation>無法將圖片放入網站：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures are in the site now.</source>
        <translation>
            <numerusform>現在網站中有 %n 張圖片。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures lie outside the site.</source>
        <translation>
            <numerusform>有 %n 張圖片位於網站之外。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures were put in.</source>
        <translation>
            <numerusform>已放入 %n 張圖片。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was copied into the site: %2.</source>
        <translation>%1 已複製到網站中：%2。</translation>
    </message>
    <message>
        <source>%1 lies outside the site.</source>
        <translation>%1 位於網站之外。</translation>
    </message>
    <message>
        <source>%1 was put in.</source>
        <translation>已放入 %1。</translation>
    </message>
    <message>
        <source>A picture could not be put into the site: %1</source>
        <translation>無法將圖片放入網站：%1</translation>
    </message>
    <message>
        <source>Link to : </source>
        <translation>連結到: </translation>
    </message>
    <message>
        <source>The unsaved changes of %1 cannot be kept for the next start. They are lost if the program ends now.

End the program all the same?</source>
        <translation>無法將 %1 未儲存的變更保留到下次啟動。如果現在結束程式，這些變更將會遺失。

仍要結束程式嗎？</translation>
    </message>
    <message>
        <source>Picture put in</source>
        <translation>已放入圖片</translation>
    </message>
    <message>
        <source>Copy it into the site, now and from now on</source>
        <translation>將它複製到網站中，此次與今後皆是如此</translation>
    </message>
    <message>
        <source>Link Where It Lies</source>
        <translation>連結到原位置</translation>
    </message>
    <message>
        <source>Name the file where it lies, now and from now on</source>
        <translation>以檔案的原位置引用，此次與今後皆是如此</translation>
    </message>
    <message>
        <source>Take it out of the page again</source>
        <translation>再將它從網頁中取出</translation>
    </message>
    <message>
        <source>Put this bar away</source>
        <translation>收起此列</translation>
    </message>
    <message>
        <source>Picture larger than shown</source>
        <translation>圖片比顯示大小更大</translation>
    </message>
    <message>
        <source>Fit File to Size</source>
        <translation>使檔案符合顯示大小</translation>
    </message>
    <message>
        <source>Make the file as large as the picture is shown; the original is kept</source>
        <translation>使檔案與圖片的顯示大小相同；原始檔會保留</translation>
    </message>
    <message>
        <source>Fit for Dense Screens</source>
        <translation>符合高密度螢幕</translation>
    </message>
    <message>
        <source>Make the file twice as large as the picture is shown</source>
        <translation>使檔案為圖片顯示大小的兩倍</translation>
    </message>
    <message>
        <source>Turn Left</source>
        <translation>向左旋轉</translation>
    </message>
    <message>
        <source>Turn the file&apos;s picture left</source>
        <translation>將檔案的圖片向左旋轉</translation>
    </message>
    <message>
        <source>Turn Right</source>
        <translation>向右旋轉</translation>
    </message>
    <message>
        <source>Turn the file&apos;s picture right</source>
        <translation>將檔案的圖片向右旋轉</translation>
    </message>
    <message>
        <source>Put the file back as it was</source>
        <translation>將檔案恢復原狀</translation>
    </message>
    <message>
        <source>%1 has %2 × %3 pixels and is shown at %4 × %5.</source>
        <translation>%1 為 %2 × %3 像素，以 %4 × %5 顯示。</translation>
    </message>
    <message>
        <source>The file stays as it is: %1</source>
        <translation>檔案維持原狀：%1</translation>
    </message>
    <message>
        <source>%1 is changed. It is kept as it was as %2.</source>
        <translation>%1 已變更。原本的內容保留為 %2。</translation>
    </message>
    <message>
        <source>%1 is as it was.</source>
        <translation>%1 已恢復原狀。</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>尋找下一個</translation>
    </message>
    <message>
        <source>Go to Line Number</source>
        <translation>跳至行號</translation>
    </message>
    <message>
        <source>Mark All Found</source>
        <translation>標示所有找到的項目</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Forms</source>
        <translation>表單</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>字型</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>清單</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>指令碼</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>框架</translation>
    </message>
    <message>
        <source>Advance</source>
        <translation>進階</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>復原(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪下(&amp;T)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全選(&amp;A)</translation>
    </message>
    <message>
        <source>%1: %2 in the source</source>
        <translation>%1：在原始碼中按 %2</translation>
    </message>
    <message>
        <source>Source Tools</source>
        <translation>原始碼工具</translation>
    </message>
    <message>
        <source>Apply to Document</source>
        <translation>套用到文件</translation>
    </message>
    <message>
        <source>Write the source back into the page (Ctrl+Return)</source>
        <translation>將原始碼寫回網頁 (Ctrl+Return)</translation>
    </message>
    <message>
        <source>Element Groups</source>
        <translation>元素群組</translation>
    </message>
    <message>
        <source>HTML source</source>
        <translation>HTML 原始碼</translation>
    </message>
    <message>
        <source>&amp;Wrap Lines</source>
        <translation>自動換行(&amp;W)</translation>
    </message>
    <message>
        <source>How the lines of the source end</source>
        <translation>原始碼各行的行尾格式</translation>
    </message>
    <message>
        <source>%1: here and on the disk</source>
        <translation>%1：此處與磁碟上</translation>
    </message>
    <message>
        <source>Here, not saved</source>
        <translation>此處，未儲存</translation>
    </message>
    <message>
        <source>On the disk</source>
        <translation>磁碟上</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一頁</translation>
    </message>
    <message>
        <source>Back to the page before</source>
        <translation>回到上一頁</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>下一頁</translation>
    </message>
    <message>
        <source>Forward again</source>
        <translation>再次前進</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>重新整理</translation>
    </message>
    <message>
        <source>Load the page again</source>
        <translation>重新載入網頁</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stop loading</source>
        <translation>停止載入</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>導覽</translation>
    </message>
    <message>
        <source>The page&apos;s source is shown again. The source that was typed and not applied comes back with Undo (Ctrl+Z)</source>
        <translation>已重新顯示網頁的原始碼。已輸入但未套用的原始碼可用「復原」(Ctrl+Z) 找回</translation>
    </message>
    <message>
        <source>Line %1, Column %2</source>
        <translation>第 %1 行，第 %2 欄</translation>
    </message>
    <message>
        <source>Error Number: %1</source>
        <translation>錯誤編號：%1</translation>
    </message>
    <message>
        <source>%1, HTML source</source>
        <translation>%1，HTML 原始碼</translation>
    </message>
    <message>
        <source>Do you want to apply the changes on this Document?</source>
        <translation>要將變更套用到此文件嗎？</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>設計</translation>
    </message>
    <message>
        <source>Design Mode</source>
        <translation>設計模式</translation>
    </message>
    <message>
        <source>View HTML</source>
        <translation>檢視 HTML</translation>
    </message>
    <message>
        <source>Edit HTML</source>
        <translation>編輯 HTML</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>網頁</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Save As keeps your changes</source>
        <translation>「另存新檔」可保留您的變更</translation>
    </message>
    <message>
        <source>This file is read-only: Save As keeps your changes</source>
        <translation>此檔案是唯讀檔案：「另存新檔」可保留您的變更</translation>
    </message>
    <message>
        <source>The page does not answer. Press Escape to stop it and go on with its text as last seen.</source>
        <translation>網頁沒有回應。按 Esc 可停止它，並以最後看到的文字繼續。</translation>
    </message>
    <message>
        <source>The page takes long to show. Press Escape to stop loading it.</source>
        <translation>網頁需要較長的時間顯示。按 Esc 可停止載入。</translation>
    </message>
    <message>
        <source>The page could not be displayed. Its text is kept: save the page and open it again.</source>
        <translation>無法顯示網頁。其文字已保留：請儲存網頁並重新開啟。</translation>
    </message>
    <message>
        <source>The page&apos;s display has been restored.</source>
        <translation>網頁的顯示已恢復。</translation>
    </message>
    <message>
        <source>The page is a frameset, which has no text to edit here: use Edit HTML to change it.</source>
        <translation>此網頁是框架組，沒有可在此編輯的文字：請使用「編輯 HTML」來變更它。</translation>
    </message>
    <message>
        <source>The page&apos;s display keeps stopping. Its text is kept: save the page and open it again.</source>
        <translation>網頁的顯示一再停止。其文字已保留：請儲存網頁並重新開啟。</translation>
    </message>
    <message>
        <source>The page&apos;s display stopped and is being restored.</source>
        <translation>網頁的顯示已停止，正在恢復。</translation>
    </message>
    <message>
        <source>The page takes long to show. Press Escape to stop it; the page is as before then.</source>
        <translation>網頁需要較長的時間顯示。按 Esc 可停止；網頁將恢復為先前的狀態。</translation>
    </message>
    <message>
        <source>The page takes long to save. Press Escape to have it written anew as a whole.</source>
        <translation>網頁需要較長的時間儲存。按 Esc 可改為將它整個重新寫入。</translation>
    </message>
    <message>
        <source>The page&apos;s source could not be kept as it was written: the whole page is written anew</source>
        <translation>網頁的原始碼無法保持原本的寫法：整個網頁已重新寫入</translation>
    </message>
    <message>
        <source>, since %1.</source>
        <translation>，因為%1。</translation>
    </message>
    <message>
        <source>That is too large to be put into a page.</source>
        <translation>內容太大，無法放入網頁。</translation>
    </message>
    <message>
        <source>One picture stays on the web.</source>
        <translation>有 1 張圖片仍在網路上。</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures stay on the web.</source>
        <translation>
            <numerusform>有 %n 張圖片仍在網路上。</numerusform>
        </translation>
    </message>
    <message>
        <source>Pasting, %1 %. Escape stops it.</source>
        <translation>正在貼上，%1 %。按 Esc 可停止。</translation>
    </message>
    <message>
        <source>The paste was stopped. Nothing has changed.</source>
        <translation>已停止貼上。沒有任何變更。</translation>
    </message>
    <message>
        <source>%1 (process %2)</source>
        <translation>%1 (處理程序 %2)</translation>
    </message>
    <message>
        <source>Video Files (*.mp4, *.webm, *.ogv)|*.mp4;*.m4v;*.webm;*.ogv;*.mov|All Files *.*|*.*</source>
        <translation>影片檔 (*.mp4, *.webm, *.ogv)|*.mp4;*.m4v;*.webm;*.ogv;*.mov|所有檔案 *.*|*.*</translation>
    </message>
    <message>
        <source>Image Files (*.jpg, *.png, *.gif, *.webp, *.svg)|*.jpg;*.jpeg;*.png;*.gif;*.webp;*.svg|All Files *.*|*.*</source>
        <translation>圖片檔 (*.jpg, *.png, *.gif, *.webp, *.svg)|*.jpg;*.jpeg;*.png;*.gif;*.webp;*.svg|所有檔案 *.*|*.*</translation>
    </message>
    <message>
        <source>Browse for a picture of low resolution (Alt+W)</source>
        <translation>瀏覽低解析度的圖片 (Alt+W)</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>預設</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>靠左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>靠右</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>頂端</translation>
    </message>
    <message>
        <source>Texttop</source>
        <translation>文字頂端 (texttop)</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中間</translation>
    </message>
    <message>
        <source>Absmiddle</source>
        <translation>絕對置中 (absmiddle)</translation>
    </message>
    <message>
        <source>Baseline</source>
        <translation>基線 (baseline)</translation>
    </message>
    <message>
        <source>Botton</source>
        <translation>底部 (bottom)</translation>
    </message>
    <message>
        <source>Absbottom</source>
        <translation>絕對底部 (absbottom)</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>置中</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>重新整理(&amp;R)</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外觀</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>版面配置</translation>
    </message>
    <message>
        <source>Alignment:</source>
        <translation>對齊方式:</translation>
    </message>
    <message>
        <source>Border thickness:</source>
        <translation>框線粗細:</translation>
    </message>
    <message>
        <source>Horizontal Spacing:</source>
        <translation>水平間距:</translation>
    </message>
    <message>
        <source>Vertical Spacing:</source>
        <translation>垂直間距:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Use &amp;Specific Size</source>
        <translation>使用指定大小(&amp;S)</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高度:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>寬度:</translation>
    </message>
    <message>
        <source>Element Information...</source>
        <translation>元素資訊...</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>元素</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>目標</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Image Source:</source>
        <translation>圖片來源:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>瀏覽(&amp;B)...</translation>
    </message>
    <message>
        <source>Alternative</source>
        <translation>替代內容</translation>
    </message>
    <message>
        <source>Low Resolution:</source>
        <translation>低解析度:</translation>
    </message>
    <message>
        <source>Alternative Text:</source>
        <translation>替代文字:</translation>
    </message>
    <message>
        <source>Browse from your computer and Link to a file</source>
        <translation>從您的電腦瀏覽並連結到檔案</translation>
    </message>
    <message>
        <source>&amp;E-mail...</source>
        <translation>電子郵件(&amp;E)...</translation>
    </message>
    <message>
        <source>Link to a E-mail Address</source>
        <translation>連結到電子郵件地址</translation>
    </message>
    <message>
        <source>Anchor Element Href:</source>
        <translation>錨點元素位址 (href):</translation>
    </message>
    <message>
        <source>Target Frame:</source>
        <translation>目標框架:</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>標題(&amp;T):</translation>
    </message>
    <message>
        <source>Special Links:</source>
        <translation>特殊連結:</translation>
    </message>
    <message>
        <source>Link to a Bookmark (Target):</source>
        <translation>連結到書籤 (目標):</translation>
    </message>
    <message>
        <source>Bookmark Name: </source>
        <translation>書籤名稱: </translation>
    </message>
    <message>
        <source>Other bookmarks in this page:</source>
        <translation>此網頁中的其他書籤:</translation>
    </message>
    <message>
        <source>Video Source:</source>
        <translation>影片來源:</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>瀏覽(&amp;W)...</translation>
    </message>
    <message>
        <source>Browse for a poster</source>
        <translation>瀏覽海報圖片</translation>
    </message>
    <message>
        <source>&amp;Poster:</source>
        <translation>海報圖片(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Show controls in Browser</source>
        <translation>在瀏覽器中顯示控制項(&amp;S)</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>重複播放</translation>
    </message>
    <message>
        <source>&amp;Loop:</source>
        <translation>重複次數(&amp;L):</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>無限次</translation>
    </message>
    <message>
        <source>Loop &amp;delay:</source>
        <translation>重複間隔(&amp;D):</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>毫秒</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始播放</translation>
    </message>
    <message>
        <source>On file open</source>
        <translation>開啟檔案時</translation>
    </message>
    <message>
        <source>On mouse over</source>
        <translation>滑鼠移過時</translation>
    </message>
    <message>
        <source>Start on &amp;Mouse Over</source>
        <translation>滑鼠移過時開始播放(&amp;M)</translation>
    </message>
    <message>
        <source>%1 cannot be loaded as a picture: %2</source>
        <translation>無法將 %1 載入為圖片：%2</translation>
    </message>
    <message>
        <source>The table is too large: with %1 columns a page takes %2 rows at most.</source>
        <translation>表格太大：有 %1 欄時，網頁最多可有 %2 列。</translation>
    </message>
    <message>
        <source>Table Editor</source>
        <translation>表格編輯器</translation>
    </message>
    <message>
        <source># Of Columns:</source>
        <translation>欄數:</translation>
    </message>
    <message>
        <source># Of Rows:</source>
        <translation>列數:</translation>
    </message>
    <message>
        <source>Align:</source>
        <translation>對齊:</translation>
    </message>
    <message>
        <source>Cell Spacing:</source>
        <translation>儲存格間距:</translation>
    </message>
    <message>
        <source>Cell Padding:</source>
        <translation>儲存格邊距:</translation>
    </message>
    <message>
        <source>Table Setup:</source>
        <translation>表格設定:</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>插入</translation>
    </message>
    <message>
        <source>All Image Files (*.jpg, *.gif, *.bmp, *.png, *.tif, *.wmf, *.tga)|*.jpg;*.jpeg;*.gif;*.bmp;*.png;*.tif;*.tiff;*.wmf;*.tga;*.ras;*.pcd;*.pcx;*.eps</source>
        <translation>所有圖片檔 (*.jpg, *.gif, *.bmp, *.png, *.tif, *.wmf, *.tga)|*.jpg;*.jpeg;*.gif;*.bmp;*.png;*.tif;*.tiff;*.wmf;*.tga;*.ras;*.pcd;*.pcx;*.eps</translation>
    </message>
    <message>
        <source>All Files *.*|*.*</source>
        <translation>所有檔案 *.*|*.*</translation>
    </message>
    <message>
        <source>%1 cannot be shown as a picture.</source>
        <translation>無法將 %1 顯示為圖片。</translation>
    </message>
    <message>
        <source>Too large for a preview</source>
        <translation>太大，無法預覽</translation>
    </message>
    <message>
        <source>Please enter the E-mail Address.</source>
        <translation>請輸入電子郵件地址。</translation>
    </message>
    <message>
        <source>The character &quot;%1&quot; cannot be written in the page&apos;s charset %2 inside a script, style sheet, comment, name or server code.</source>
        <translation>在指令碼、樣式表、註解、名稱或伺服器程式碼中，無法以網頁的字元集 %2 寫入字元「%1」。</translation>
    </message>
    <message>
        <source>no smaller change of its source gives the page as it is shown now</source>
        <translation>對其原始碼做較小的變更無法得到網頁目前的顯示內容</translation>
    </message>
    <message>
        <source>the check whether a smaller change is enough did not answer</source>
        <translation>檢查較小的變更是否足夠時沒有得到回應</translation>
    </message>
    <message>
        <source>bytes that are no text in %1 stand beside what was changed</source>
        <translation>變更處旁邊有不屬於 %1 文字的位元組</translation>
    </message>
    <message>
        <source>The page would have to be written anew, since %1, and that would lose &quot;%2&quot;, which has no place in the page as it is shown. Change the page&apos;s source instead.</source>
        <translation>網頁必須重新寫入，因為%1，而這會遺失「%2」，它在網頁目前的顯示內容中沒有位置。請改為變更網頁的原始碼。</translation>
    </message>
    <message>
        <source>%1, which is none of the charsets that pages may have</source>
        <translation>%1 編碼，不屬於網頁可用的字元集</translation>
    </message>
    <message>
        <source>a binary file, which is no text</source>
        <translation>二進位檔，不是文字</translation>
    </message>
    <message>
        <source>this kind of picture cannot be changed</source>
        <translation>這種圖片無法變更</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>檔案是空的</translation>
    </message>
    <message>
        <source>the picture cannot be coded: %1</source>
        <translation>無法編碼圖片：%1</translation>
    </message>
    <message>
        <source>It was a %1 file, which browsers do not show, and is %2 now.</source>
        <translation>原本是瀏覽器無法顯示的 %1 檔案，現在是 %2。</translation>
    </message>
    <message>
        <source>It holds scripts, which browsers do not run in a picture.</source>
        <translation>其中含有指令碼，瀏覽器不會在圖片中執行。</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1，第 %2 行：%3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not map a drive; write lines like &quot;C: /home/me/windows&quot;</source>
        <translation>「%1」沒有對應磁碟機；請寫成像「C: /home/me/windows」這樣的行</translation>
    </message>
    <message>
        <source>drive %1: has a folder already</source>
        <translation>磁碟機 %1: 已有資料夾</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Formatted</source>
        <translation>已格式化</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Heading 1</source>
        <translation>標題 1</translation>
    </message>
    <message>
        <source>Heading 2</source>
        <translation>標題 2</translation>
    </message>
    <message>
        <source>Heading 3</source>
        <translation>標題 3</translation>
    </message>
    <message>
        <source>Heading 4</source>
        <translation>標題 4</translation>
    </message>
    <message>
        <source>Heading 5</source>
        <translation>標題 5</translation>
    </message>
    <message>
        <source>Heading 6</source>
        <translation>標題 6</translation>
    </message>
    <message>
        <source>Numbered List</source>
        <translation>編號清單</translation>
    </message>
    <message>
        <source>Bulleted List</source>
        <translation>項目符號清單</translation>
    </message>
    <message>
        <source>Directory List</source>
        <translation>目錄清單</translation>
    </message>
    <message>
        <source>Menu List</source>
        <translation>選單清單</translation>
    </message>
    <message>
        <source>Definition Term</source>
        <translation>定義詞彙</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>定義</translation>
    </message>
    <message>
        <source>Paragraph</source>
        <translation>段落</translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>程序呼叫或引數不正確</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>溢位</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>陣列索引超出範圍</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>型態不符合</translation>
    </message>
    <message>
        <source>Out of string space</source>
        <translation>字串空間不足</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>找不到檔案</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>裝置 I/O 錯誤</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>磁碟已滿</translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation>輸入超過檔案結尾</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>沒有使用權限</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>路徑/檔案存取錯誤</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>找不到路徑</translation>
    </message>
    <message>
        <source>Object variable or With block variable not set</source>
        <translation>沒有設定物件變數或 With 區塊變數</translation>
    </message>
    <message>
        <source>Cancel was selected</source>
        <translation>已選擇「取消」</translation>
    </message>
    <message>
        <source>Index out of bounds</source>
        <translation>索引超出界限</translation>
    </message>
    <message>
        <source>Element not found</source>
        <translation>找不到元素</translation>
    </message>
    <message>
        <source>Incorrect control type passed to &apos;Attach&apos; parameter - must be a control with a hWnd property.</source>
        <translation>傳給 &apos;Attach&apos; 參數的控制項類型不正確 - 必須是具有 hWnd 屬性的控制項。</translation>
    </message>
    <message>
        <source>Error %1 in %2: %3</source>
        <translation>%2 發生錯誤 %1：%3</translation>
    </message>
    <message>
        <source>Application-defined or object-defined error</source>
        <translation>應用程式或物件定義上的錯誤</translation>
    </message>
    <message>
        <source>Web Site Project Manager</source>
        <translation>網站專案管理員</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>附註</translation>
    </message>
    <message>
        <source>Select the Project and open it.</source>
        <translation>請選取專案並開啟。</translation>
    </message>
    <message>
        <source>ProjectId</source>
        <translation>專案編號</translation>
    </message>
    <message>
        <source>ProjectName</source>
        <translation>專案名稱</translation>
    </message>
    <message>
        <source>DateModified</source>
        <translation>修改日期</translation>
    </message>
    <message>
        <source>PageId</source>
        <translation>網頁編號</translation>
    </message>
    <message>
        <source>PageName</source>
        <translation>網頁名稱</translation>
    </message>
    <message>
        <source>Web Pages</source>
        <translation>網頁</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>圖片</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>報告</translation>
    </message>
    <message>
        <source>Tab 4</source>
        <translation>分頁 4</translation>
    </message>
    <message>
        <source>This catalogue comes from another computer, where the site lies in %1. That computer no longer finds the site if %2 is written into the catalogue.

Yes: name the folder here that stands for drive %3:. No: write %2 all the same.</source>
        <translation>此目錄檔來自另一部電腦，在該電腦上網站位於 %1。如果將 %2 寫入目錄檔，該電腦將再也找不到此網站。

「是」：指定此處代表磁碟機 %3: 的資料夾。「否」：仍然寫入 %2。</translation>
    </message>
    <message>
        <source>Web path not found please provide the path</source>
        <translation>找不到網站路徑，請提供路徑</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>維持原狀</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底部</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>相同視窗</translation>
    </message>
    <message>
        <source>A new one</source>
        <translation>新視窗</translation>
    </message>
    <message>
        <source>All of the window</source>
        <translation>整個視窗</translation>
    </message>
    <message>
        <source>The frame above</source>
        <translation>上一層框架</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>由左至右</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>由右至左</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>立即載入</translation>
    </message>
    <message>
        <source>When it comes into sight</source>
        <translation>進入可見範圍時</translation>
    </message>
    <message>
        <source>Pixels, or a number with % or another unit</source>
        <translation>像素，或帶有 % 或其他單位的數字</translation>
    </message>
    <message>
        <source>#RRGGBB, or a colour&apos;s name</source>
        <translation>#RRGGBB，或顏色名稱</translation>
    </message>
    <message>
        <source>C&amp;lass:</source>
        <translation>類別(&amp;L):</translation>
    </message>
    <message>
        <source>Names of rules of the page&apos;s style sheets, parted by blanks</source>
        <translation>網頁樣式表中的規則名稱，以空白分隔</translation>
    </message>
    <message>
        <source>&amp;Id:</source>
        <translation>識別碼(&amp;I):</translation>
    </message>
    <message>
        <source>A name of its own, for links and style sheets</source>
        <translation>專屬的名稱，供連結與樣式表使用</translation>
    </message>
    <message>
        <source>Such as en, de or zh-Hant</source>
        <translation>例如 en、de 或 zh-Hant</translation>
    </message>
    <message>
        <source>Direct&amp;ion:</source>
        <translation>文字方向(&amp;I):</translation>
    </message>
    <message>
        <source>D&amp;escription:</source>
        <translation>描述(&amp;E):</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>作者(&amp;A):</translation>
    </message>
    <message>
        <source>&amp;Viewport:</source>
        <translation>檢視區(&amp;V):</translation>
    </message>
    <message>
        <source>How phones show it: width=device-width, initial-scale=1</source>
        <translation>手機上的顯示方式：width=device-width, initial-scale=1</translation>
    </message>
    <message>
        <source>Te&amp;xt colour:</source>
        <translation>文字顏色(&amp;X):</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <translation>背景(&amp;B):</translation>
    </message>
    <message>
        <source>Background &amp;picture:</source>
        <translation>背景圖片(&amp;P):</translation>
    </message>
    <message>
        <source>Lin&amp;k colour:</source>
        <translation>連結顏色(&amp;K):</translation>
    </message>
    <message>
        <source>Visited link col&amp;our:</source>
        <translation>已瀏覽連結顏色(&amp;O):</translation>
    </message>
    <message>
        <source>Active link colo&amp;ur:</source>
        <translation>使用中連結顏色(&amp;U):</translation>
    </message>
    <message>
        <source>Rendering:</source>
        <translation>呈現模式:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>位址(&amp;A):</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>描述(&amp;D):</translation>
    </message>
    <message>
        <source>Read out, and shown where the picture is not</source>
        <translation>會被讀出，並在圖片無法顯示時代替圖片</translation>
    </message>
    <message>
        <source>It only ador&amp;ns</source>
        <translation>僅供裝飾(&amp;N)</translation>
    </message>
    <message>
        <source>Nothing is read out for it</source>
        <translation>不會讀出任何內容</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>寬度(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>高度(&amp;H):</translation>
    </message>
    <message>
        <source>&amp;Border:</source>
        <translation>框線(&amp;B):</translation>
    </message>
    <message>
        <source>L&amp;oading:</source>
        <translation>載入方式(&amp;O):</translation>
    </message>
    <message>
        <source>Rows:</source>
        <translation>列數:</translation>
    </message>
    <message>
        <source>Columns:</source>
        <translation>欄數:</translation>
    </message>
    <message>
        <source>C&amp;aption:</source>
        <translation>標題(&amp;A):</translation>
    </message>
    <message>
        <source>&amp;Headings in the first row</source>
        <translation>第一列為標題(&amp;H)</translation>
    </message>
    <message>
        <source>Headings in the &amp;first column</source>
        <translation>第一欄為標題(&amp;F)</translation>
    </message>
    <message>
        <source>Ali&amp;gn:</source>
        <translation>對齊(&amp;G):</translation>
    </message>
    <message>
        <source>Cell &amp;padding:</source>
        <translation>儲存格邊距(&amp;P):</translation>
    </message>
    <message>
        <source>Cell &amp;spacing:</source>
        <translation>儲存格間距(&amp;S):</translation>
    </message>
    <message>
        <source>Bac&amp;kground:</source>
        <translation>背景(&amp;K):</translation>
    </message>
    <message>
        <source>Rows that it takes:</source>
        <translation>所跨的列數:</translation>
    </message>
    <message>
        <source>Columns that it takes:</source>
        <translation>所跨的欄數:</translation>
    </message>
    <message>
        <source>&amp;Heading</source>
        <translation>標題儲存格(&amp;H)</translation>
    </message>
    <message>
        <source>H&amp;eight:</source>
        <translation>高度(&amp;E):</translation>
    </message>
    <message>
        <source>&amp;Vertically:</source>
        <translation>垂直對齊(&amp;V):</translation>
    </message>
    <message>
        <source>&amp;No line breaks</source>
        <translation>不換行(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Window:</source>
        <translation>視窗(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Relation:</source>
        <translation>關聯(&amp;R):</translation>
    </message>
    <message>
        <source>Such as nofollow or noopener</source>
        <translation>例如 nofollow 或 noopener</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>字型(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>大小(&amp;S):</translation>
    </message>
    <message>
        <source>Points, or a number with px</source>
        <translation>點數，或帶有 px 的數字</translation>
    </message>
    <message>
        <source>&amp;Colour:</source>
        <translation>顏色(&amp;C):</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>粗體(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>斜體(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>底線(&amp;U)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no length. Write a number, or one with a unit: 120, 50%, 8em.</source>
        <translation>「%1」不是長度。請輸入數字，或帶有單位的數字：120、50%、8em。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no colour. Write #RRGGBB or a name: #C00000, navy.</source>
        <translation>「%1」不是顏色。請輸入 #RRGGBB 或名稱：#C00000、navy。</translation>
    </message>
    <message>
        <source>Appl&amp;y</source>
        <translation>套用(&amp;Y)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>無法讀取 %1：%2</translation>
    </message>
    <message>
        <source>it is not a file.</source>
        <translation>它不是檔案。</translation>
    </message>
    <message>
        <source>it is another user&apos;s.</source>
        <translation>它屬於另一位使用者。</translation>
    </message>
    <message>
        <source>it is too large.</source>
        <translation>它太大了。</translation>
    </message>
    <message>
        <source>its beginning is damaged, or another version of the program wrote it.</source>
        <translation>它的開頭已損毀，或是由其他版本的程式所寫入。</translation>
    </message>
    <message>
        <source>A page that cannot be read</source>
        <translation>無法讀取的網頁</translation>
    </message>
    <message>
        <source>changed %1</source>
        <translation>變更於 %1</translation>
    </message>
    <message>
        <source>kept at exit</source>
        <translation>結束時保留</translation>
    </message>
    <message>
        <source>never saved</source>
        <translation>從未儲存</translation>
    </message>
    <message>
        <source>the file is gone</source>
        <translation>檔案已不存在</translation>
    </message>
    <message>
        <source>the file on disk is newer</source>
        <translation>磁碟上的檔案較新</translation>
    </message>
    <message>
        <source>HTML source not applied</source>
        <translation>HTML 原始碼尚未套用</translation>
    </message>
    <message>
        <source>These pages were kept at exit with their unsaved changes (Alt+G leads to them):</source>
        <translation>這些網頁在結束程式時連同未儲存的變更一併保留 (按 Alt+G 可前往):</translation>
    </message>
    <message>
        <source>These pages were not saved when the program ended (Alt+G leads to them):</source>
        <translation>這些網頁在程式結束時尚未儲存 (按 Alt+G 可前往):</translation>
    </message>
    <message>
        <source>Recovered pages</source>
        <translation>救回的網頁</translation>
    </message>
    <message>
        <source>Restore All</source>
        <translation>全部還原</translation>
    </message>
    <message>
        <source>Restore all pages</source>
        <translation>還原所有網頁</translation>
    </message>
    <message>
        <source>Open all pages with their unsaved changes</source>
        <translation>開啟所有網頁及其未儲存的變更</translation>
    </message>
    <message>
        <source>Discard All</source>
        <translation>全部捨棄</translation>
    </message>
    <message>
        <source>Discard all pages</source>
        <translation>捨棄所有網頁</translation>
    </message>
    <message>
        <source>Give the unsaved changes of all pages up, after a question</source>
        <translation>經詢問後，放棄所有網頁未儲存的變更</translation>
    </message>
    <message>
        <source>Recovery is off, unsaved changes cannot be kept: %1</source>
        <translation>救援功能已停用，無法保留未儲存的變更：%1</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>Open the page with its unsaved changes</source>
        <translation>開啟網頁及其未儲存的變更</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>顯示</translation>
    </message>
    <message>
        <source>Look at the page in the preview</source>
        <translation>在預覽中查看網頁</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>捨棄</translation>
    </message>
    <message>
        <source>Give the unsaved changes up</source>
        <translation>放棄未儲存的變更</translation>
    </message>
    <message>
        <source>The journal of %1 is damaged: its last changes are missing</source>
        <translation>%1 的日誌已損毀：遺失了最後的變更</translation>
    </message>
    <message>
        <source>%1 is restored already, and stays here until its changes can be kept for a recovery</source>
        <translation>%1 已經還原，在它的變更能夠為救援而保留之前，仍會留在這裡</translation>
    </message>
    <message>
        <source>%1 is open already. Close it, then restore what was kept</source>
        <translation>%1 已經開啟。請先關閉它，再還原保留的內容</translation>
    </message>
    <message>
        <source>%1 stays here: %2 pages are open, which is the most. Close one, then restore it</source>
        <translation>%1 留在這裡：已開啟 %2 個網頁，達到上限。請先關閉一個，再還原它</translation>
    </message>
    <message>
        <source>%1 more stay here: %2 pages are open, which is the most</source>
        <translation>還有 %1 個留在這裡：已開啟 %2 個網頁，達到上限</translation>
    </message>
    <message>
        <source>%1 could not be restored: %2</source>
        <translation>無法還原 %1：%2</translation>
    </message>
    <message>
        <source>Discard the unsaved changes of all pages listed here (%1)? They cannot be brought back.</source>
        <translation>要捨棄此處列出的所有網頁 (%1) 未儲存的變更嗎？這些變更將無法找回。</translation>
    </message>
    <message>
        <source>it</source>
        <translation>它</translation>
    </message>
    <message>
        <source>print paper save</source>
        <translation>列印 紙張 儲存</translation>
    </message>
    <message>
        <source>Export as PDF... (&amp;O)</source>
        <translation>匯出為 PDF...(&amp;O)</translation>
    </message>
    <message>
        <source>Export as PDF</source>
        <translation>匯出為 PDF</translation>
    </message>
    <message>
        <source>Write no file (Escape)</source>
        <translation>不寫入檔案 (Esc)</translation>
    </message>
    <message>
        <source>PDF File</source>
        <translation>PDF 檔案</translation>
    </message>
    <message>
        <source>The name of a PDF file ends in .pdf. Nothing was written.</source>
        <translation>PDF 檔案的名稱須以 .pdf 結尾。未寫入任何內容。</translation>
    </message>
    <message>
        <source>A PDF is being made already. Escape stops it</source>
        <translation>已在製作 PDF。按 Esc 可停止</translation>
    </message>
    <message>
        <source>Making a PDF of %1. Escape stops it</source>
        <translation>正在製作 %1 的 PDF。按 Esc 可停止</translation>
    </message>
    <message>
        <source>The PDF was stopped. No file was written</source>
        <translation>已停止製作 PDF。未寫入檔案</translation>
    </message>
    <message>
        <source>The PDF could not be written.</source>
        <translation>無法寫入 PDF。</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>已匯出 %1</translation>
    </message>
    <message>
        <source>The page could not be printed. No file was written.</source>
        <translation>無法列印網頁。未寫入檔案。</translation>
    </message>
    <message>
        <source>There is no page to print</source>
        <translation>沒有可列印的頁面</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>直向</translation>
    </message>
    <message>
        <source>Across</source>
        <translation>橫向</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>列印</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>列印...</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>頁面</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>紙張(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Direction:</source>
        <translation>方向(&amp;D):</translation>
    </message>
    <message>
        <source>&amp;Margins:</source>
        <translation>邊界(&amp;M):</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>縮放(&amp;S):</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&amp;Backgrounds</source>
        <translation>背景(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Header and footer</source>
        <translation>頁首與頁尾(&amp;H)</translation>
    </message>
    <message>
        <source>The pages are being made</source>
        <translation>正在製作頁面</translation>
    </message>
    <message>
        <source>The page could not be printed.</source>
        <translation>無法列印此頁面。</translation>
    </message>
    <message>
        <source>One page</source>
        <translation>一頁</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n 頁</numerusform>
        </translation>
    </message>
    <message>
        <source>Printing page %1. Escape stops it</source>
        <translation>正在列印第 %1 頁。按 Esc 停止</translation>
    </message>
    <message>
        <source>The printer did not take the page.</source>
        <translation>印表機未接受此頁。</translation>
    </message>
    <message>
        <source>paper printer</source>
        <translation>紙張 印表機</translation>
    </message>
    <message>
        <source>Print... (&amp;I)</source>
        <translation>列印...(&amp;I)</translation>
    </message>
    <message>
        <source>Waves under &amp;unknown words</source>
        <translation>未知字詞加波浪線(&amp;U)</translation>
    </message>
    <message>
        <source>Language of pages that name &amp;none:</source>
        <translation>未註明語言之網頁的語言(&amp;N):</translation>
    </message>
    <message>
        <source>A tag such as en-GB or de; empty for the system&apos;s language</source>
        <translation>如 en-GB 或 de 的標記；留空則用系統語言</translation>
    </message>
    <message>
        <source>spell dictionary words check language</source>
        <translation>拼字 字典 字詞 檢查 語言</translation>
    </message>
    <message>
        <source>Spelling... (&amp;Y)</source>
        <translation>拼字檢查... (&amp;Y)</translation>
    </message>
    <message>
        <source>spell suggestions word</source>
        <translation>拼字 建議 字詞</translation>
    </message>
    <message>
        <source>Correct Word (&amp;J)</source>
        <translation>更正字詞 (&amp;J)</translation>
    </message>
    <message>
        <source>The word could not be added: %1</source>
        <translation>無法加入此字詞：%1</translation>
    </message>
    <message>
        <source>No Suggestions</source>
        <translation>沒有建議</translation>
    </message>
    <message>
        <source>Add &quot;%1&quot; to My Words</source>
        <translation>將「%1」加入我的字詞</translation>
    </message>
    <message>
        <source>Add &quot;%1&quot; to the Words of the Site</source>
        <translation>將「%1」加入網站的字詞</translation>
    </message>
    <message>
        <source>Ignore &quot;%1&quot;</source>
        <translation>略過「%1」</translation>
    </message>
    <message>
        <source>There is no unknown word at the caret</source>
        <translation>插入點沒有未知字詞</translation>
    </message>
    <message>
        <source>Spelling</source>
        <translation>拼字檢查</translation>
    </message>
    <message>
        <source>Change to</source>
        <translation>改為</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>變更</translation>
    </message>
    <message>
        <source>Change this word and go on (Enter)</source>
        <translation>變更此字詞並繼續 (Enter)</translation>
    </message>
    <message>
        <source>Change All</source>
        <translation>全部變更</translation>
    </message>
    <message>
        <source>Change this word everywhere in the page, as one step of Undo</source>
        <translation>在整個網頁變更此字詞，為一個復原步驟</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>略過</translation>
    </message>
    <message>
        <source>Take this word for known until the program ends</source>
        <translation>在程式結束前視此字詞為已知</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>加入</translation>
    </message>
    <message>
        <source>Add this word to my words</source>
        <translation>將此字詞加入我的字詞</translation>
    </message>
    <message>
        <source>Add to Site</source>
        <translation>加入網站</translation>
    </message>
    <message>
        <source>Add this word to the words of the site</source>
        <translation>將此字詞加入網站的字詞</translation>
    </message>
    <message>
        <source>Leave this word and go on (F7)</source>
        <translation>保留此字詞並繼續 (F7)</translation>
    </message>
    <message>
        <source>There is no unknown word in this page</source>
        <translation>此網頁沒有未知字詞</translation>
    </message>
    <message>
        <source>Unknown word: %1</source>
        <translation>未知字詞：%1</translation>
    </message>
    <message>
        <source>The spelling of a language of this page is not checked: the package %1 is not installed.</source>
        <translation>此網頁有一種語言未檢查拼字：未安裝套件 %1。</translation>
    </message>
    <message>
        <source>path class id</source>
        <translation>路徑 類別 識別碼</translation>
    </message>
    <message>
        <source>Path of elements</source>
        <translation>元素路徑</translation>
    </message>
    <message>
        <source>Outer elements</source>
        <translation>外層元素</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>選取(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>屬性(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Remove Tag, Keep Content</source>
        <translation>移除標籤，保留內容(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Classes</source>
        <translation>類別(&amp;C)</translation>
    </message>
    <message>
        <source>The style sheets have none for it</source>
        <translation>樣式表中沒有適用的類別</translation>
    </message>
    <message>
        <source>&amp;More...</source>
        <translation>更多(&amp;M)...</translation>
    </message>
    <message>
        <source>Classes</source>
        <translation>類別</translation>
    </message>
    <message>
        <source>Part of the class&apos;s name</source>
        <translation>類別名稱的一部分</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>標籤：</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>路徑：</translation>
    </message>
    <message>
        <source>Lan&amp;guage:</source>
        <translation>語言(&amp;G):</translation>
    </message>
    <message>
        <source>&amp;Style:</source>
        <translation>樣式(&amp;S):</translation>
    </message>
    <message>
        <source>Declarations for this element alone: color: navy</source>
        <translation>僅用於此元素的宣告：color: navy</translation>
    </message>
    <message>
        <source>Element Properties</source>
        <translation>元素屬性</translation>
    </message>
    <message>
        <source>markup source code</source>
        <translation>標記 原始碼 程式碼</translation>
    </message>
    <message>
        <source>&amp;HTML:</source>
        <translation>&amp;HTML：</translation>
    </message>
    <message>
        <source>How it will look:</source>
        <translation>預覽結果：</translation>
    </message>
    <message>
        <source>Zoom (&amp;Z)</source>
        <translation>顯示比例(&amp;Z)</translation>
    </message>
    <message>
        <source>larger bigger magnify</source>
        <translation>放大 變大</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>smaller</source>
        <translation>縮小 變小</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>100 normal reset</source>
        <translation>100 正常 原始</translation>
    </message>
    <message>
        <source>Own &amp;Size</source>
        <translation>原始大小(&amp;S)</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Choose: %1</source>
        <translation>選擇：%1</translation>
    </message>
    <message>
        <source>There is no unknown word in the open pages</source>
        <translation>開啟的網頁沒有未知字詞</translation>
    </message>
    <message>
        <source>site dictionary words check</source>
        <translation>網站 字典 字詞 檢查</translation>
    </message>
    <message>
        <source>Spelling of All Pages... (&amp;H)</source>
        <translation>所有網頁的拼字檢查... (&amp;H)</translation>
    </message>
    <message>
        <source>Unknown Words of All Open Pages</source>
        <translation>所有開啟網頁的未知字詞</translation>
    </message>
    <message>
        <source>Unknown words</source>
        <translation>未知字詞</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>字詞</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>次數</translation>
    </message>
    <message>
        <source>Change &amp;to:</source>
        <translation>改為(&amp;T):</translation>
    </message>
    <message>
        <source>Change &amp;Everywhere</source>
        <translation>全部變更(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>略過(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>加入(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>關閉(&amp;C)</translation>
    </message>
    <message>
        <source>Line:</source>
        <translation>行號:</translation>
    </message>
    <message>
        <source>One word changed</source>
        <translation>已變更 1 個字</translation>
    </message>
    <message numerus="yes">
        <source>%n words changed</source>
        <translation>
            <numerusform>已變更 %n 個字</numerusform>
        </translation>
    </message>
    <message>
        <source>symbol sign special unicode letter</source>
        <translation>符號 特殊 字元 萬國碼</translation>
    </message>
    <message>
        <source>Insert Character</source>
        <translation>插入字元</translation>
    </message>
    <message>
        <source>&amp;Name or code:</source>
        <translation>名稱或碼位(&amp;N):</translation>
    </message>
    <message>
        <source>em dash, 2014, or the character itself</source>
        <translation>em dash、2014 或字元本身</translation>
    </message>
    <message>
        <source>&amp;Block:</source>
        <translation>區塊(&amp;B):</translation>
    </message>
    <message>
        <source>Chosen before</source>
        <translation>先前選取的</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>字元</translation>
    </message>
    <message>
        <source>No character is called that.</source>
        <translation>沒有這個名稱的字元。</translation>
    </message>
    <message>
        <source>New from Template</source>
        <translation>從範本新增</translation>
    </message>
    <message>
        <source>&amp;Template:</source>
        <translation>範本(&amp;T):</translation>
    </message>
    <message>
        <source>HTML5 page</source>
        <translation>HTML5 網頁</translation>
    </message>
    <message>
        <source>T&amp;itle:</source>
        <translation>標題(&amp;I):</translation>
    </message>
    <message>
        <source>Fits the &amp;width of phones (viewport)</source>
        <translation>配合手機寬度(&amp;W)（viewport）</translation>
    </message>
    <message>
        <source>Template of new pa&amp;ges:</source>
        <translation>新網頁的範本(&amp;G):</translation>
    </message>
    <message>
        <source>A page file; empty for the usual new page</source>
        <translation>網頁檔案；留空則為一般的新網頁</translation>
    </message>
    <message>
        <source>page create html5</source>
        <translation>網頁 建立 html5 範本</translation>
    </message>
    <message>
        <source>keep page</source>
        <translation>保留 網頁 範本</translation>
    </message>
    <message>
        <source>There is a template %1 already. Replace it?</source>
        <translation>已有範本 %1。要取代嗎？</translation>
    </message>
    <message>
        <source>The template for new pages cannot be read: %1</source>
        <translation>無法讀取新網頁的範本：%1</translation>
    </message>
    <message>
        <source>Name of the template:</source>
        <translation>範本名稱:</translation>
    </message>
    <message>
        <source>Save as Template</source>
        <translation>儲存為範本</translation>
    </message>
    <message>
        <source>The name of a template has no slash and does not begin with a dot</source>
        <translation>範本名稱不可有斜線，也不可以句點開頭</translation>
    </message>
    <message>
        <source>The template could not be saved: %1</source>
        <translation>無法儲存範本：%1</translation>
    </message>
    <message>
        <source>The page is the template %1 now</source>
        <translation>網頁現在是範本 %1</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>快速鍵</translation>
    </message>
    <message>
        <source>Words of the command</source>
        <translation>命令的字詞</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>按鍵</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>按鍵(&amp;K):</translation>
    </message>
    <message>
        <source>Press a key; Delete takes it away</source>
        <translation>請按一個按鍵；Delete 可移除</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>重設(&amp;R)</translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation>全部重設(&amp;A)</translation>
    </message>
    <message>
        <source>%1 has this key too</source>
        <translation>%1 也使用此按鍵</translation>
    </message>
    <message>
        <source>goes before %1 in the page</source>
        <translation>在頁面中優先於%1</translation>
    </message>
    <message>
        <source>in the page %1</source>
        <translation>在頁面中為 %1</translation>
    </message>
    <message>
        <source>keys keyboard hotkeys</source>
        <translation>按鍵 鍵盤 快速鍵</translation>
    </message>
    <message>
        <source>That is no key.</source>
        <translation>這不是按鍵。</translation>
    </message>
    <message>
        <source>%1 types, moves or deletes.</source>
        <translation>%1 用於輸入、移動或刪除。</translation>
    </message>
    <message>
        <source>%1 is a key of the window.</source>
        <translation>%1 是視窗的按鍵。</translation>
    </message>
    <message>
        <source>%1 opens the menu %2.</source>
        <translation>%1 會開啟功能表「%2」。</translation>
    </message>
    <message>
        <source>Place of what is selected</source>
        <translation>選取項目的位置</translation>
    </message>
    <message>
        <source>Rows %1-%2, columns %3-%4</source>
        <translation>第 %1-%2 列，第 %3-%4 欄</translation>
    </message>
    <message>
        <source>Left %1, top %2, size %3 × %4</source>
        <translation>左 %1，上 %2，大小 %3 × %4</translation>
    </message>
    <message>
        <source>Words...</source>
        <translation>字數...</translation>
    </message>
    <message>
        <source>Words and characters</source>
        <translation>字數與字元數</translation>
    </message>
    <message>
        <source>There is no page whose words could be counted</source>
        <translation>沒有可計算字數的頁面</translation>
    </message>
    <message>
        <source>Words in the page: %1</source>
        <translation>頁面字數：%1</translation>
    </message>
    <message>
        <source>Characters in the page: %1</source>
        <translation>頁面字元數：%1</translation>
    </message>
    <message>
        <source>Words in the selection: %1</source>
        <translation>選取範圍字數：%1</translation>
    </message>
    <message>
        <source>Characters in the selection: %1</source>
        <translation>選取範圍字元數：%1</translation>
    </message>
    <message>
        <source>Pages in design view and previews have a width</source>
        <translation>設計檢視中的網頁和預覽才有寬度</translation>
    </message>
    <message>
        <source>phone tablet mobile responsive media small</source>
        <translation>手機 平板 行動 響應式 窄</translation>
    </message>
    <message>
        <source>Page Widths</source>
        <translation>頁面寬度</translation>
    </message>
    <message>
        <source>Drag to change the page&apos;s width</source>
        <translation>拖曳以變更頁面寬度</translation>
    </message>
    <message>
        <source>Widths at which the page changes: %1</source>
        <translation>頁面改變時的寬度：%1</translation>
    </message>
    <message numerus="yes">
        <source>Show at %n pixels</source>
        <translation>
            <numerusform>以 %n 像素寬顯示</numerusform>
        </translation>
    </message>
    <message>
        <source>Add Viewport</source>
        <translation>加入 viewport</translation>
    </message>
    <message>
        <source>Tells phones to lay the page out at their own width. Undo takes it back</source>
        <translation>讓手機以自己的寬度排版頁面。可以復原</translation>
    </message>
    <message>
        <source>Close, and show pages as wide as the window</source>
        <translation>關閉，並以視窗寬度顯示網頁</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>全寬</translation>
    </message>
    <message>
        <source>As wide as the window</source>
        <translation>與視窗同寬</translation>
    </message>
    <message numerus="yes">
        <source>%n pixels wide</source>
        <translation>
            <numerusform>寬 %n 像素</numerusform>
        </translation>
    </message>
    <message>
        <source>Page width in pixels</source>
        <translation>頁面寬度（像素）</translation>
    </message>
    <message>
        <source>As a Phone</source>
        <translation>模擬手機</translation>
    </message>
    <message>
        <source>Show the preview as a phone does: touch, sharpness, name of the browser</source>
        <translation>像手機一樣顯示預覽：觸控、解析度、瀏覽器名稱</translation>
    </message>
    <message>
        <source>Phones show this page small: it has no viewport declaration</source>
        <translation>手機會縮小顯示這個網頁：它沒有 viewport 宣告</translation>
    </message>
    <message>
        <source>The page keeps its charset %1.</source>
        <translation>網頁保留其字元集 %1。</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>還有 %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>The charset %1 lacks these characters of the page. They become references such as &amp;#8364;, which browsers show as before.</source>
        <translation>字元集 %1 缺少網頁中的這些字元。它們會變成像 &amp;#8364; 這樣的參照,瀏覽器的顯示不變。</translation>
    </message>
    <message>
        <source>Convert the Page</source>
        <translation>轉換網頁</translation>
    </message>
    <message>
        <source>Some bytes of the page are no text in its charset %1 and would be lost. Mend them first: they show as question marks in black diamonds.</source>
        <translation>網頁中有些位元組在其字元集 %1 中不是文字,將會遺失。請先修正:它們顯示為黑色菱形中的問號。</translation>
    </message>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1(第 %2 行)</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n times, first in line %2)</source>
        <translation>
            <numerusform>%1(%n 次,首次在第 %2 行)</numerusform>
        </translation>
    </message>
    <message>
        <source>The page would not be read as %1: its declaration is made by server code, or stands too far behind its start.</source>
        <translation>網頁不會以 %1 讀取:其宣告由伺服器程式碼產生,或離開頭太遠。</translation>
    </message>
    <message>
        <source>Web Pages (*.htm, *.html)|*.htm;*.html;*.xhtml;*.shtml;*.php|All Files *.*|*.*</source>
        <translation>網頁 (*.htm, *.html)|*.htm;*.html;*.xhtml;*.shtml;*.php|所有檔案 *.*|*.*</translation>
    </message>
    <message>
        <source>Style Sheets (*.css)|*.css|All Files *.*|*.*</source>
        <translation>樣式表 (*.css)|*.css|所有檔案 *.*|*.*</translation>
    </message>
    <message>
        <source>Icons (*.ico, *.png, *.svg)|*.ico;*.png;*.svg;*.gif|All Files *.*|*.*</source>
        <translation>圖示 (*.ico, *.png, *.svg)|*.ico;*.png;*.svg;*.gif|所有檔案 *.*|*.*</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>範例</translation>
    </message>
    <message>
        <source>Sample text 123</source>
        <translation>範例文字 123</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>瀏覽...</translation>
    </message>
    <message>
        <source>Browse: %1</source>
        <translation>瀏覽:%1</translation>
    </message>
    <message>
        <source>Top of the text</source>
        <translation>文字頂端</translation>
    </message>
    <message>
        <source>By the standards</source>
        <translation>依照標準</translation>
    </message>
    <message>
        <source>As old browsers did (quirks mode): the page has no doctype</source>
        <translation>如舊瀏覽器(怪異模式):網頁沒有 doctype</translation>
    </message>
    <message>
        <source>As old browsers did (quirks mode): its doctype is an old one</source>
        <translation>如舊瀏覽器(怪異模式):其 doctype 是舊式的</translation>
    </message>
    <message>
        <source>Ico&amp;n:</source>
        <translation>圖示(&amp;N):</translation>
    </message>
    <message>
        <source>A small picture for the page&apos;s tab in browsers</source>
        <translation>瀏覽器分頁上顯示的小圖片</translation>
    </message>
    <message>
        <source>&amp;Charset:</source>
        <translation>字元集(&amp;C):</translation>
    </message>
    <message>
        <source>&amp;Style sheets:</source>
        <translation>樣式表(&amp;S):</translation>
    </message>
    <message>
        <source>One address a line, in the order in which they apply</source>
        <translation>每行一個位址,依套用順序</translation>
    </message>
    <message>
        <source>Lin&amp;k:</source>
        <translation>連結(&amp;K):</translation>
    </message>
    <message>
        <source>Room at the &amp;sides:</source>
        <translation>左右間距(&amp;S):</translation>
    </message>
    <message>
        <source>Room abo&amp;ve and below:</source>
        <translation>上下間距(&amp;V):</translation>
    </message>
    <message>
        <source>B&amp;order colour:</source>
        <translation>框線顏色(&amp;O):</translation>
    </message>
    <message>
        <source>S&amp;trikethrough</source>
        <translation>刪除線(&amp;T)</translation>
    </message>
    <message>
        <source>Subscri&amp;pt</source>
        <translation>下標(&amp;P)</translation>
    </message>
    <message>
        <source>Supe&amp;rscript</source>
        <translation>上標(&amp;R)</translation>
    </message>
    <message>
        <source>Co&amp;de</source>
        <translation>程式碼(&amp;D)</translation>
    </message>
    <message>
        <source>Re&amp;move Link</source>
        <translation>移除連結(&amp;M)</translation>
    </message>
    <message>
        <source>New from Template... (&amp;T)</source>
        <translation>從範本新增...(&amp;T)</translation>
    </message>
    <message>
        <source>Save as Template... (&amp;M)</source>
        <translation>儲存為範本...(&amp;M)</translation>
    </message>
    <message>
        <source>Page Widths (&amp;X)</source>
        <translation>頁面寬度(&amp;X)</translation>
    </message>
    <message>
        <source>Site (&amp;H)</source>
        <translation>網站(&amp;H)</translation>
    </message>
    <message>
        <source>Insert More (&amp;V)</source>
        <translation>插入其他(&amp;V)</translation>
    </message>
    <message>
        <source>Insert Character... (&amp;C)</source>
        <translation>插入字元...(&amp;C)</translation>
    </message>
    <message>
        <source>Paste As (&amp;B)</source>
        <translation>貼上為(&amp;B)</translation>
    </message>
    <message>
        <source>Shortcuts... (&amp;D)</source>
        <translation>快速鍵...(&amp;D)</translation>
    </message>
    <message>
        <source>Templates (&amp;T)</source>
        <translation>範本(&amp;T)</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 已經存在。
要取代它嗎？</translation>
    </message>
    <message>
        <source>Crop and Turn %1</source>
        <translation>裁剪與旋轉 %1</translation>
    </message>
    <message>
        <source>Part of the picture that stays</source>
        <translation>圖片保留的部分</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>左(&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>上(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Keep the ratio</source>
        <translation>保持比例(&amp;K)</translation>
    </message>
    <message>
        <source>cut trim rotate image photo</source>
        <translation>剪裁 旋轉 圖片 相片 cut trim rotate</translation>
    </message>
    <message>
        <source>Crop and Turn Picture... (&amp;C)</source>
        <translation>裁剪與旋轉圖片... (&amp;C)</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>裁剪...</translation>
    </message>
    <message>
        <source>Cut a part out of the file&apos;s picture</source>
        <translation>從檔案的圖片中剪出一部分</translation>
    </message>
    <message>
        <source>Select a picture of the site first: a JPEG, PNG or WebP file that does not move</source>
        <translation>請先選取網站的圖片：不含動畫的 JPEG、PNG 或 WebP 檔案</translation>
    </message>
    <message>
        <source>Alternative Text</source>
        <translation>替代文字</translation>
    </message>
    <message>
        <source>What does it show?</source>
        <translation>它顯示的是什麼？</translation>
    </message>
    <message>
        <source>Alternative text: what is read where the picture is not seen</source>
        <translation>替代文字：看不到圖片時所讀出的文字</translation>
    </message>
    <message>
        <source>Decorative</source>
        <translation>裝飾用</translation>
    </message>
    <message>
        <source>It says nothing: its alternative text is empty</source>
        <translation>不表達任何內容：替代文字留空</translation>
    </message>
    <message>
        <source>Design view changed the page where its source was changed too. Applying the source takes these changes back, until Undo</source>
        <translation>設計檢視在原始碼也改過的地方更改了網頁。套用原始碼會取代這些更改，「復原」可取回</translation>
    </message>
    <message>
        <source>%1 stays as it is. What the saved page shows is kept as %2.</source>
        <translation>%1 維持原狀。已儲存網頁所顯示的圖片保存為 %2。</translation>
    </message>
    <message>
        <source>title language description charset encoding background style sheet css</source>
        <translation>標題 語言 描述 字元集 編碼 背景 樣式表 css</translation>
    </message>
    <message>
        <source>size colour color</source>
        <translation>大小 顏色</translation>
    </message>
    <message>
        <source>numbered list</source>
        <translation>編號 清單</translation>
    </message>
    <message>
        <source>bullets list</source>
        <translation>項目符號 清單</translation>
    </message>
</context>
<context>
    <name>velor::frmAbout</name>
    <message>
        <source>Browser engine: Chromium %1</source>
        <translation>瀏覽器引擎：Chromium %1</translation>
    </message>
    <message>
        <source>Security fixes up to %1 (about %2)</source>
        <translation>安全性修正至 %1 (約 %2)</translation>
    </message>
    <message>
        <source>These fixes are older than 18 months: preview only pages that you trust. A newer release of your system brings a newer engine.</source>
        <translation>這些修正已超過 18 個月：請只預覽您信任的網頁。較新版本的作業系統會提供較新的引擎。</translation>
    </message>
    <message>
        <source>About us...</source>
        <translation>關於我們...</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>標誌</translation>
    </message>
</context>
<context>
    <name>velor::frmDialog_Table</name>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>&amp;Headings in the first row</source>
        <translation>第一列為標題(&amp;H)</translation>
    </message>
</context>
<context>
    <name>velor::frmInsertElement</name>
    <message>
        <source>A page cannot say this without a script</source>
        <translation>網頁若不使用指令碼便無法表達這一點</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 是空的。</translation>
    </message>
    <message>
        <source>A bookmark&apos;s name has no blanks.</source>
        <translation>書籤名稱不可含有空白。</translation>
    </message>
    <message>
        <source>The page has a bookmark of this name already.</source>
        <translation>此網頁已有同名的書籤。</translation>
    </message>
    <message>
        <source>Only pages that begin with &lt;!DOCTYPE html&gt; can hold a video.</source>
        <translation>只有以 &lt;!DOCTYPE html&gt; 開頭的網頁才能包含影片。</translation>
    </message>
</context>
<context>
    <name>velor::frmMain</name>
    <message>
        <source>There is no link at the caret</source>
        <translation>游標處沒有連結</translation>
    </message>
    <message>
        <source>The link leads nowhere before the page is saved</source>
        <translation>在網頁儲存之前，此連結無法指向任何位置</translation>
    </message>
    <message>
        <source>%1 is for another program</source>
        <translation>%1 要由其他程式開啟</translation>
    </message>
</context>
</TS>
