<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Wardlock</name>
    <message>
        <source>The database is damaged. Some of its events can no longer be read.</source>
        <translation>قاعدة البيانات تالفة، ولم يعد بالإمكان قراءة جزء من أحداثها.</translation>
    </message>
    <message>
        <source>Please restore a backup. Until then, no reader is erased.</source>
        <translation>يُرجى استعادة نسخة احتياطية. وحتى ذلك الحين لن تُمسح ذاكرة أي قارئ.</translation>
    </message>
    <message>
        <source>Another program is using it.</source>
        <translation>برنامج آخر يستخدم قاعدة البيانات.</translation>
    </message>
    <message>
        <source>It is in use by %0:s (process %1:s).</source>
        <translation>قاعدة البيانات يستخدمها %0:s (العملية %1:s).</translation>
    </message>
    <message>
        <source>It is in use on computer %2:s by %0:s (process %1:s).</source>
        <translation>قاعدة البيانات يستخدمها %0:s على الحاسوب %2:s (العملية %1:s).</translation>
    </message>
    <message>
        <source>The touches are stored, but the disk reported an error. The reader was not erased.</source>
        <translation>حُفظت القراءات، لكن القرص أبلغ عن خطأ. لم تُمسح ذاكرة القارئ.</translation>
    </message>
    <message>
        <source>The disk or the network reported an error. Please check it and try again.</source>
        <translation>أبلغ القرص أو الشبكة عن خطأ. يُرجى التحقق منه ثم إعادة المحاولة.</translation>
    </message>
    <message>
        <source>The database is damaged. The reader was not erased.</source>
        <translation>قاعدة البيانات تالفة. لم تُمسح ذاكرة القارئ.</translation>
    </message>
    <message>
        <source>A name or description can have at most 100 characters.</source>
        <translation>لا يجوز أن يتجاوز الاسم أو الوصف 100 حرف.</translation>
    </message>
    <message>
        <source>A password cannot contain line breaks or other control characters.</source>
        <translation>لا يجوز أن تحتوي كلمة المرور على فواصل أسطر أو رموز تحكم أخرى.</translation>
    </message>
    <message>
        <source>The report could not be created. See error.log for the reason.</source>
        <translation>تعذّر إنشاء التقرير. السبب مدوَّن في الملف error.log.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>الملف غير موجود.</translation>
    </message>
    <message>
        <source>The folder %0:s does not exist. Please create it, or choose another folder in WARDLOCK_HOME.</source>
        <translation>المجلد %0:s غير موجود. يُرجى إنشاؤه أو تحديد مجلد آخر في WARDLOCK_HOME.</translation>
    </message>
    <message>
        <source>You may not write to the folder %0:s. Please ask for permission, or choose another folder in WARDLOCK_HOME.</source>
        <translation>لا توجد صلاحية للكتابة في المجلد %0:s. يُرجى طلب الصلاحية أو تحديد مجلد آخر في WARDLOCK_HOME.</translation>
    </message>
    <message>
        <source>There is no database yet. Please start the station once to create it.</source>
        <translation>لا توجد قاعدة بيانات بعد. يُرجى تشغيل برنامج Wardlock مرة واحدة لينشئها.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>القرص ممتلئ.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this file or its folder.</source>
        <translation>لا توجد صلاحية للكتابة في هذا الملف أو في مجلده.</translation>
    </message>
    <message>
        <source>Its password is different, or it is damaged. If it is damaged, please restore a backup.</source>
        <translation>كلمة مرور الملف مختلفة أو الملف تالف. إذا كان تالفًا فيُرجى استعادة نسخة احتياطية.</translation>
    </message>
    <message>
        <source>It is damaged. Please restore a backup.</source>
        <translation>الملف تالف. يُرجى استعادة نسخة احتياطية.</translation>
    </message>
    <message>
        <source>A journal next to the database did not belong to it. The database was opened without this journal.</source>
        <translation>وُجد بجانب قاعدة البيانات ملف يومية لا يخصها، ففُتحت قاعدة البيانات من دونه.</translation>
    </message>
    <message>
        <source>It was renamed to:</source>
        <translation>أُعيدت تسميته إلى:</translation>
    </message>
    <message>
        <source>The User Name / Password are incorrect. Please try again.</source>
        <translation>اسم المستخدم أو كلمة المرور غير صحيحة. يُرجى إعادة المحاولة.</translation>
    </message>
    <message>
        <source>Could not open the com port.</source>
        <translation>تعذّر فتح منفذ COM.</translation>
    </message>
    <message>
        <source>Check settings and try again.</source>
        <translation>يُرجى التحقق من الإعدادات وإعادة المحاولة.</translation>
    </message>
    <message>
        <source>The master chooses the port under Tools, Com Options.</source>
        <translation>يختار المشرف المنفذ من القائمة «أدوات»، «منفذ COM».</translation>
    </message>
    <message>
        <source>Is the docking station plugged in, and is this its device?</source>
        <translation>هل محطة الإرساء موصولة، وهل هذا هو جهازها؟</translation>
    </message>
    <message>
        <source>Could not connect to the docking station.</source>
        <translation>تعذّر الاتصال بمحطة الإرساء.</translation>
    </message>
    <message>
        <source>Check hardware and settings and try again.</source>
        <translation>يُرجى التحقق من الأجهزة والإعدادات وإعادة المحاولة.</translation>
    </message>
    <message>
        <source>Working in Offline Mode</source>
        <translation>سيستمر العمل دون اتصال</translation>
    </message>
    <message>
        <source>Docking Station : OK</source>
        <translation>محطة الإرساء: متصلة</translation>
    </message>
    <message>
        <source>Docking Station : Not Detected</source>
        <translation>محطة الإرساء: غير موجودة</translation>
    </message>
    <message>
        <source>%0:s is gone. Plug it in again.</source>
        <translation>انقطع %0:s. يُرجى توصيله من جديد.</translation>
    </message>
    <message>
        <source>Last download</source>
        <translation>آخر تنزيل</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>لا يوجد بعد</translation>
    </message>
    <message>
        <source>Tours of the last 24 hours</source>
        <translation>جولات آخر 24 ساعة</translation>
    </message>
    <message>
        <source>Click a tour, or press Enter, to open its report.</source>
        <translation>يُفتح تقرير الجولة بالنقر عليها أو بالضغط على Enter.</translation>
    </message>
    <message>
        <source>No tour was due.</source>
        <translation>لم تكن هناك جولة مقررة.</translation>
    </message>
    <message>
        <source>Readers and tours are not set up yet. A master does this on the Setup page.</source>
        <translation>لم تُعرَّف القارئات والجولات بعد. يقوم المشرف بذلك في صفحة «الإعداد».</translation>
    </message>
    <message>
        <source>not downloaded or not walked</source>
        <translation>لم تُنزَّل أو لم تُنفَّذ</translation>
    </message>
    <message>
        <source>On time</source>
        <translation>في الموعد</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>مبكرة</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>متأخرة</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>فائتة</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>الخطوات الأولى</translation>
    </message>
    <message>
        <source>Define a site</source>
        <translation>تعريف موقع</translation>
    </message>
    <message>
        <source>Add the buttons of the site</source>
        <translation>إضافة أزرار الموقع</translation>
    </message>
    <message>
        <source>Add a reader</source>
        <translation>إضافة قارئ</translation>
    </message>
    <message>
        <source>Plan a tour</source>
        <translation>تخطيط جولة</translation>
    </message>
    <message>
        <source>done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>The touches could not be stored. The reader was not erased.</source>
        <translation>تعذّر حفظ القراءات. لم تُمسح ذاكرة القارئ.</translation>
    </message>
    <message>
        <source>Touches stored: </source>
        <translation>القراءات المحفوظة: </translation>
    </message>
    <message>
        <source>The reader was taken out of the station. It was not erased.</source>
        <translation>أُخرج القارئ من محطة الإرساء. لم تُمسح ذاكرته.</translation>
    </message>
    <message>
        <source>Another reader is in the station. It was not erased.</source>
        <translation>يوجد قارئ آخر في محطة الإرساء. لم تُمسح ذاكرته.</translation>
    </message>
    <message>
        <source>The reader has been used since it was read. It was not erased.</source>
        <translation>استُخدم القارئ بعد تنزيل بياناته. لم تُمسح ذاكرته.</translation>
    </message>
    <message>
        <source>The reader's memory continues after its end mark. The touches that were read are stored, but the reader was not erased.</source>
        <translation>تحتوي ذاكرة القارئ على بيانات بعد علامة النهاية. حُفظت القراءات التي تم تنزيلها، لكن ذاكرة القارئ لم تُمسح.</translation>
    </message>
    <message>
        <source>The reader holds a different number of records than it reports. The touches that were read are stored, but the reader was not erased.</source>
        <translation>عدد السجلات في القارئ يختلف عن العدد الذي يعلنه. حُفظت القراءات التي تم تنزيلها، لكن ذاكرة القارئ لم تُمسح.</translation>
    </message>
    <message>
        <source>The reader's clock can only be set to a date from 1 January 2000 to 6 June 2179. It was not set.</source>
        <translation>لا تُضبط ساعة القارئ إلا على تاريخ بين 1 يناير 2000 و6 يونيو 2179. لم تُضبط الساعة.</translation>
    </message>
    <message>
        <source>Reader Memory NOT erased!</source>
        <translation>لم تُمسح ذاكرة القارئ!</translation>
    </message>
    <message>
        <source>Reader Memory erased</source>
        <translation>مُسحت ذاكرة القارئ</translation>
    </message>
    <message>
        <source>Reader ID:</source>
        <translation>معرّف القارئ:</translation>
    </message>
    <message>
        <source>KV-88 Wardlock Reports</source>
        <translation>تقارير KV-88 Wardlock</translation>
    </message>
    <message>
        <source>%0:s - Version %1:s</source>
        <translation>%0:s - الإصدار %1:s</translation>
    </message>
    <message>
        <source>Download Failed</source>
        <translation>فشل التنزيل</translation>
    </message>
    <message>
        <source>Remove the cause, and then download the reader again.</source>
        <translation>يُرجى إزالة السبب ثم تنزيل بيانات القارئ من جديد.</translation>
    </message>
    <message>
        <source>All touches are still in the reader.</source>
        <translation>جميع القراءات لا تزال في القارئ.</translation>
    </message>
    <message>
        <source>Download Successful</source>
        <translation>تم التنزيل بنجاح</translation>
    </message>
    <message>
        <source>Reports of the tours in this download</source>
        <translation>تقارير الجولات في هذا التنزيل</translation>
    </message>
    <message>
        <source>More on the Reports page: %0:s</source>
        <translation>المزيد في صفحة «التقارير»: %0:s</translation>
    </message>
    <message>
        <source>Data Readings = </source>
        <translation>عدد القراءات: </translation>
    </message>
    <message>
        <source>The Reader was empty</source>
        <translation>كان القارئ فارغًا</translation>
    </message>
    <message>
        <source>Reader Clock update failed.  Please try again.</source>
        <translation>تعذّر ضبط ساعة القارئ. يُرجى إعادة المحاولة.</translation>
    </message>
    <message>
        <source>The download itself is complete. The clock can be set with Reader Options in the Tools menu.</source>
        <translation>اكتمل التنزيل نفسه. يمكن ضبط الساعة من «خيارات القارئ» في القائمة «أدوات».</translation>
    </message>
    <message>
        <source>Are you sure you want to clear the reader? </source>
        <translation>هل تريد بالتأكيد مسح ذاكرة القارئ؟ </translation>
    </message>
    <message>
        <source>The reader that was downloaded last:</source>
        <translation>آخر قارئ نُزِّلت بياناته:</translation>
    </message>
    <message>
        <source>Touches that have not been downloaded yet will be lost.</source>
        <translation>ستُفقد القراءات التي لم تُنزَّل بعد.</translation>
    </message>
    <message>
        <source>Reader Erase Failed.  Try again?</source>
        <translation>تعذّر مسح ذاكرة القارئ. هل تريد إعادة المحاولة؟</translation>
    </message>
    <message>
        <source>As long as the reader keeps its touches, each further download stores them again.</source>
        <translation>ما دامت القراءات باقية في القارئ فإن كل تنزيل لاحق يحفظها مرة أخرى.</translation>
    </message>
    <message>
        <source>Reader Erased</source>
        <translation>مُسحت ذاكرة القارئ</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>Download Error</source>
        <translation>خطأ في التنزيل</translation>
    </message>
    <message>
        <source>The names of the buttons could not be read from the database. See error.log for the reason.</source>
        <translation>تعذّرت قراءة أسماء الأزرار من قاعدة البيانات. السبب مدوَّن في الملف error.log.</translation>
    </message>
    <message>
        <source>What the reader sent was not complete or not valid. Please try again.</source>
        <translation>البيانات التي أرسلها القارئ غير كاملة أو غير صالحة. يُرجى إعادة المحاولة.</translation>
    </message>
    <message>
        <source>The connection to the docking station was lost. Check its cable and try again.</source>
        <translation>انقطع الاتصال بمحطة الإرساء. يُرجى التحقق من الكابل وإعادة المحاولة.</translation>
    </message>
    <message>
        <source>The docking station could not read the reader. Take it out, put it in again, and try once more.</source>
        <translation>تعذّر على محطة الإرساء قراءة القارئ. يُرجى إخراجه ووضعه من جديد ثم إعادة المحاولة.</translation>
    </message>
    <message>
        <source>Put the reader into the docking station so that it sits firmly.</source>
        <translation>يُرجى وضع القارئ في محطة الإرساء بحيث يثبت في مكانه.</translation>
    </message>
    <message>
        <source>The reader stopped answering. Leave it in the docking station until the download is complete, and try again.</source>
        <translation>توقف القارئ عن الاستجابة. يُرجى تركه في محطة الإرساء حتى اكتمال التنزيل ثم إعادة المحاولة.</translation>
    </message>
    <message>
        <source>Downloading data from reader</source>
        <translation>جارٍ تنزيل البيانات من القارئ</translation>
    </message>
    <message>
        <source>Reader not detected. Check reader and try again.</source>
        <translation>لم يُعثر على قارئ. يُرجى التحقق من القارئ وإعادة المحاولة.</translation>
    </message>
    <message>
        <source>Download Completed</source>
        <translation>اكتمل التنزيل</translation>
    </message>
    <message>
        <source>Processing Data</source>
        <translation>جارٍ معالجة البيانات</translation>
    </message>
    <message>
        <source>Ready...</source>
        <translation>جاهز...</translation>
    </message>
    <message>
        <source>Opening COM port...</source>
        <translation>جارٍ فتح منفذ COM...</translation>
    </message>
    <message>
        <source>Could Not Open Com </source>
        <translation>تعذّر فتح المنفذ COM </translation>
    </message>
    <message>
        <source>Please try another COM port or check that the COM port is not in use by another program.</source>
        <translation>يُرجى تجربة منفذ COM آخر أو التأكد من أن المنفذ لا يستخدمه برنامج آخر.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>Looks for the docking station again</source>
        <translation>يبحث عن محطة الإرساء من جديد</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>تجاهل</translation>
    </message>
    <message>
        <source>Checking Docking Station...</source>
        <translation>جارٍ البحث عن محطة الإرساء...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>فشل</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>لا يوجد جهاز</translation>
    </message>
    <message>
        <source>&amp;Open Report...</source>
        <translation>&amp;فتح التقرير...</translation>
    </message>
    <message>
        <source>Open the dialog of the selected report</source>
        <translation>فتح نافذة التقرير المحدد</translation>
    </message>
    <message>
        <source>Report Name</source>
        <translation>اسم التقرير</translation>
    </message>
    <message>
        <source>Descri&amp;ption</source>
        <translation>ال&amp;وصف</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>Tour / Exception Report</source>
        <translation>تقرير الجولة / المخالفات</translation>
    </message>
    <message>
        <source>Patrol Schedule</source>
        <translation>جدول الجولة</translation>
    </message>
    <message>
        <source>Lists the times and places for a tour</source>
        <translation>يعرض أوقات الجولة وأماكنها</translation>
    </message>
    <message>
        <source>Patrol Schedule Report</source>
        <translation>جدول الجولة</translation>
    </message>
    <message>
        <source>Select the tour from which the tour schedule will be created.</source>
        <translation>اختيار الجولة المطلوب إنشاء جدولها.</translation>
    </message>
    <message>
        <source>Tour Description:</source>
        <translation>وصف الجولة:</translation>
    </message>
    <message>
        <source>Tour Tolerance:</source>
        <translation>هامش السماح:</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>الدقائق</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>الرقم</translation>
    </message>
    <message>
        <source>Hardware List Report</source>
        <translation>قائمة الأجهزة</translation>
    </message>
    <message>
        <source>List all the defined buttons</source>
        <translation>يعرض جميع الأزرار المعرّفة</translation>
    </message>
    <message>
        <source>Select the options for the hardware report</source>
        <translation>اختيار ما تتضمنه قائمة الأجهزة</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>الحدث</translation>
    </message>
    <message>
        <source>E&amp;vent</source>
        <translation>ال&amp;حدث</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>نقاط المراقبة</translation>
    </message>
    <message>
        <source>Incidents</source>
        <translation>الأحداث</translation>
    </message>
    <message>
        <source>Hardware Code</source>
        <translation>رمز الجهاز</translation>
    </message>
    <message>
        <source>You must add at least one reader before this report can be used</source>
        <translation>يجب إضافة قارئ واحد على الأقل قبل استخدام هذا التقرير</translation>
    </message>
    <message>
        <source>A master adds tours on the Setup page.</source>
        <translation>يضيف المشرف الجولات في صفحة «الإعداد».</translation>
    </message>
    <message>
        <source>A master adds readers on the Setup page.</source>
        <translation>يضيف المشرف القارئات في صفحة «الإعداد».</translation>
    </message>
    <message>
        <source>You must add at least one tour before this report can be used</source>
        <translation>يجب إضافة جولة واحدة على الأقل قبل استخدام هذا التقرير</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>الإصدار</translation>
    </message>
    <message>
        <source>You could not be logged in.  Closing the program now.</source>
        <translation>تعذّر تسجيل الدخول. سيُغلق البرنامج الآن.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>الرئيسية</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>التنزيل</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>التقارير</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>الإعداد</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>الرقم</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>الوقت</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>الرمز</translation>
    </message>
    <message>
        <source>Button Name</source>
        <translation>اسم الزر</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>اسم المجموعة</translation>
    </message>
    <message>
        <source>Unable to display Help Contents. There is no Help associated with this project.</source>
        <translation>تعذّر عرض المساعدة. لا توجد مساعدة مرتبطة بهذا البرنامج.</translation>
    </message>
    <message>
        <source>Copyright © 2026 the Wardlock authors. Free software under the MIT License.</source>
        <translation>حقوق النشر © 2026 لمؤلفي Wardlock. برنامج حر بموجب رخصة MIT.</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>المشرف</translation>
    </message>
    <message>
        <source>User</source>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>The passwords do not match, please re-enter</source>
        <translation>كلمتا المرور غير متطابقتين، يُرجى إدخالهما من جديد</translation>
    </message>
    <message>
        <source>Opening Database...</source>
        <translation>جارٍ فتح قاعدة البيانات...</translation>
    </message>
    <message>
        <source>Compacting Database...</source>
        <translation>جارٍ ضغط قاعدة البيانات...</translation>
    </message>
    <message>
        <source>Loading Application...</source>
        <translation>جارٍ تحميل البرنامج...</translation>
    </message>
    <message>
        <source>Initializing Online Help...</source>
        <translation>جارٍ تهيئة المساعدة...</translation>
    </message>
    <message>
        <source>Error in creating new Tour</source>
        <translation>خطأ في إنشاء الجولة</translation>
    </message>
    <message>
        <source>The tour has no points. A master adds them on the Setup page.</source>
        <translation>لا توجد نقاط في الجولة. يضيفها المشرف في صفحة «الإعداد».</translation>
    </message>
    <message>
        <source>This tour does not exist any more, or it cannot be read.</source>
        <translation>لم تعد هذه الجولة موجودة، أو تعذّرت قراءتها.</translation>
    </message>
    <message>
        <source>The settings cannot be saved. Changes you make now are lost when the program ends.</source>
        <translation>تعذّر حفظ الإعدادات. ستُفقد التغييرات التي تُجرى الآن عند إنهاء البرنامج.</translation>
    </message>
    <message>
        <source>EARLY</source>
        <translation>مبكرة</translation>
    </message>
    <message>
        <source>ON TIME</source>
        <translation>في الموعد</translation>
    </message>
    <message>
        <source>LATE</source>
        <translation>متأخرة</translation>
    </message>
    <message>
        <source>OUT OF SEQUENCE</source>
        <translation>خارج التسلسل</translation>
    </message>
    <message>
        <source>%0:s points: %1:s</source>
        <translation>النقاط (%0:s): %1:s</translation>
    </message>
    <message>
        <source>1 point: %0:s</source>
        <translation>نقطة واحدة: %0:s</translation>
    </message>
    <message>
        <source>%0:s, %1:s</source>
        <translation>%0:s، %1:s</translation>
    </message>
    <message>
        <source>%0:s: %1:s</source>
        <translation>%0:s: %1:s</translation>
    </message>
    <message>
        <source>%0:s on time</source>
        <translation>%0:s في الموعد</translation>
    </message>
    <message>
        <source>%0:s early</source>
        <translation>%0:s مبكرة</translation>
    </message>
    <message>
        <source>%0:s late</source>
        <translation>%0:s متأخرة</translation>
    </message>
    <message>
        <source>%0:s missing</source>
        <translation>%0:s فائتة</translation>
    </message>
    <message>
        <source>NOT ON TOUR</source>
        <translation>خارج الجولة</translation>
    </message>
    <message>
        <source>NO EXCEPTIONS</source>
        <translation>لا مخالفات</translation>
    </message>
    <message>
        <source>EXCEPTION</source>
        <translation>مخالفة</translation>
    </message>
    <message>
        <source>MISSING</source>
        <translation>فائتة</translation>
    </message>
    <message>
        <source>to</source>
        <translation>إلى</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>حدث</translation>
    </message>
    <message>
        <source>Generating Report</source>
        <translation>إنشاء التقرير</translation>
    </message>
    <message>
        <source>Please wait, generating report (this may take a few minutes)</source>
        <translation>يُرجى الانتظار، جارٍ إنشاء التقرير (قد يستغرق ذلك بضع دقائق)</translation>
    </message>
    <message>
        <source>Date Range:   From %0:s to %1:s</source>
        <translation>الفترة:   من %0:s إلى %1:s</translation>
    </message>
    <message>
        <source>No Data on the report</source>
        <translation>لا توجد بيانات للتقرير</translation>
    </message>
    <message>
        <source>See error.log for the reason.</source>
        <translation>السبب مدوَّن في الملف error.log.</translation>
    </message>
    <message>
        <source>Please check these choices, and whether the reader has been downloaded.</source>
        <translation>يُرجى التحقق من هذه الاختيارات ومن تنزيل بيانات القارئ.</translation>
    </message>
    <message>
        <source>There is no data to show for these parameters</source>
        <translation>لا توجد بيانات تطابق هذه المعايير</translation>
    </message>
    <message>
        <source>The start date cannot be later than the end date</source>
        <translation>لا يجوز أن يكون تاريخ البداية بعد تاريخ النهاية</translation>
    </message>
    <message>
        <source>Reader Download Report</source>
        <translation>تقرير تنزيلات القارئ</translation>
    </message>
    <message>
        <source>Lists details of each download to the PC for a reader</source>
        <translation>يعرض تفاصيل كل تنزيل من القارئ إلى الحاسوب</translation>
    </message>
    <message>
        <source>Download Time:</source>
        <translation>وقت التنزيل:</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>الرمز</translation>
    </message>
    <message>
        <source>Date / Time</source>
        <translation>التاريخ / الوقت</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>المجموعة</translation>
    </message>
    <message>
        <source>Database Report</source>
        <translation>تقرير قاعدة البيانات</translation>
    </message>
    <message>
        <source>Raw data from database</source>
        <translation>البيانات الخام من قاعدة البيانات</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Print Date:</source>
        <translation>تاريخ الطباعة:</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>الصفحة</translation>
    </message>
    <message>
        <source>Tour Date:</source>
        <translation>تاريخ الجولة:</translation>
    </message>
    <message>
        <source>Tour Name:</source>
        <translation>اسم الجولة:</translation>
    </message>
    <message>
        <source>Tolerance (min):</source>
        <translation>هامش السماح (د):</translation>
    </message>
    <message>
        <source>Site/Location</source>
        <translation>الموقع / نقطة المراقبة</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>End Of Report</source>
        <translation>نهاية التقرير</translation>
    </message>
    <message>
        <source>Show Events:</source>
        <translation>عرض الأحداث:</translation>
    </message>
    <message>
        <source>Tour Report</source>
        <translation>تقرير الجولة</translation>
    </message>
    <message>
        <source>Exception Report</source>
        <translation>تقرير المخالفات</translation>
    </message>
    <message>
        <source>Reader ID</source>
        <translation>معرّف القارئ</translation>
    </message>
    <message>
        <source>Transfer progress</source>
        <translation>تقدّم النقل</translation>
    </message>
    <message>
        <source>Transfer progress in percent</source>
        <translation>تقدّم النقل بالنسبة المئوية</translation>
    </message>
    <message>
        <source>Do not remove the reader until download is complete.</source>
        <translation>يجب عدم إخراج القارئ قبل اكتمال التنزيل.</translation>
    </message>
    <message>
        <source>Docking Station</source>
        <translation>محطة الإرساء</translation>
    </message>
    <message>
        <source>Connection progress</source>
        <translation>تقدّم الاتصال</translation>
    </message>
    <message>
        <source>&amp;Download Data</source>
        <translation>&amp;تنزيل البيانات</translation>
    </message>
    <message>
        <source>Stores the touches of the docked reader, then erases the reader</source>
        <translation>يحفظ قراءات القارئ الموضوع ثم يمسح ذاكرته</translation>
    </message>
    <message>
        <source>Erases the docked reader without storing its touches</source>
        <translation>يمسح ذاكرة القارئ الموضوع دون حفظ قراءاته</translation>
    </message>
    <message>
        <source>&amp;Erase Reader</source>
        <translation>م&amp;سح ذاكرة القارئ</translation>
    </message>
    <message>
        <source>Download result</source>
        <translation>نتيجة التنزيل</translation>
    </message>
    <message>
        <source>Touches read</source>
        <translation>القراءات المنزَّلة</translation>
    </message>
    <message>
        <source>Communications  Setup</source>
        <translation>إعداد الاتصال</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>الم&amp;نفذ:</translation>
    </message>
    <message>
        <source>&amp;Device:</source>
        <translation>ال&amp;جهاز:</translation>
    </message>
    <message>
        <source>The device for this port number</source>
        <translation>الجهاز المقابل لرقم المنفذ هذا</translation>
    </message>
    <message>
        <source>Leave the device set to Automatic unless the docking station uses another one.</source>
        <translation>يُترك الجهاز على «تلقائي» ما لم تستخدم محطة الإرساء جهازًا آخر.</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;حسنًا</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إل&amp;غاء</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>المساعدة</translation>
    </message>
    <message>
        <source>Help text</source>
        <translation>نص المساعدة</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;بحث:</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>المحتويات</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>السابق</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>لم يُعثر على شيء.</translation>
    </message>
    <message>
        <source>Help on This &amp;Page</source>
        <translation>مساعدة لهذه ال&amp;صفحة</translation>
    </message>
    <message>
        <source>The help is in English.</source>
        <translation>المساعدة باللغة الإنجليزية.</translation>
    </message>
    <message>
        <source>It is not a help file of this program.</source>
        <translation>الملف ليس ملف مساعدة لهذا البرنامج.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إ&amp;غلاق</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>ال&amp;لغة:</translation>
    </message>
    <message>
        <source>&amp;Master</source>
        <translation>الم&amp;شرف</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>ال&amp;مستخدم</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;كلمة المرور:</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>Page title</source>
        <translation>عنوان الصفحة</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;أدوات</translation>
    </message>
    <message>
        <source>User &amp;Maintenance</source>
        <translation>كل&amp;مات المرور</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>مسا&amp;عدة</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>إن&amp;هاء</translation>
    </message>
    <message>
        <source>Com &amp;Options...</source>
        <translation>م&amp;نفذ COM...</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>الل&amp;غة</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;المحتويات</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>أيقونة البرنامج</translation>
    </message>
    <message>
        <source>User Maintenance</source>
        <translation>كلمات المرور</translation>
    </message>
    <message>
        <source>&amp;Retype Password:</source>
        <translation>&amp;تأكيد كلمة المرور:</translation>
    </message>
    <message>
        <source>Report Parameters</source>
        <translation>معايير التقرير</translation>
    </message>
    <message>
        <source>Select the tour and start date to create the report</source>
        <translation>اختيار الجولة وتاريخها لإنشاء التقرير</translation>
    </message>
    <message>
        <source>Choose the reader</source>
        <translation>اختيار القارئ</translation>
    </message>
    <message>
        <source>Select the date range and reader ID to create the Reader Download Report</source>
        <translation>اختيار الفترة والقارئ لإنشاء تقرير التنزيلات</translation>
    </message>
    <message>
        <source>Reset Dates</source>
        <translation>ضبط على اليوم</translation>
    </message>
    <message>
        <source>Sets the range back to today</source>
        <translation>يعيد الفترة إلى اليوم</translation>
    </message>
    <message>
        <source>Select the date range to create the report</source>
        <translation>اختيار الفترة لإنشاء التقرير</translation>
    </message>
    <message>
        <source>Presets:</source>
        <translation>فترات جاهزة:</translation>
    </message>
    <message>
        <source>Only this event; the places that were touched before it are shown with it</source>
        <translation>هذا الحدث فقط، ومعه الأماكن المسجَّلة قبله</translation>
    </message>
    <message>
        <source>Only touches made while this site was the last one touched</source>
        <translation>القراءات التي سُجِّلت وكان هذا الموقع آخر موقع مسجَّل فقط</translation>
    </message>
    <message>
        <source>Sets the range and makes the report at once</source>
        <translation>يضبط الفترة وينشئ التقرير فورًا</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>آخر 7 أيام</translation>
    </message>
    <message>
        <source>Last30 Days</source>
        <translation>آخر 30 يومًا</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدّم</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>المعايير</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>الجولة</translation>
    </message>
    <message>
        <source>&amp;Tour</source>
        <translation>ال&amp;جولة</translation>
    </message>
    <message>
        <source>Tour &amp;Date</source>
        <translation>&amp;تاريخ الجولة</translation>
    </message>
    <message>
        <source>Reader</source>
        <translation>القارئ</translation>
    </message>
    <message>
        <source>&amp;Reader</source>
        <translation>ال&amp;قارئ</translation>
    </message>
    <message>
        <source>Report Options</source>
        <translation>خيارات التقرير</translation>
    </message>
    <message>
        <source>Show &amp;All Tour Points</source>
        <translation>ع&amp;رض جميع نقاط الجولة</translation>
    </message>
    <message>
        <source>Only Show &amp;Exceptions</source>
        <translation>عر&amp;ض المخالفات فقط</translation>
    </message>
    <message>
        <source>&amp;Include Events</source>
        <translation>تض&amp;مين الأحداث</translation>
    </message>
    <message>
        <source>Also shows the incidents recorded at each point</source>
        <translation>يعرض أيضًا الأحداث المسجَّلة عند كل نقطة</translation>
    </message>
    <message>
        <source>&amp;Start Date</source>
        <translation>تاري&amp;خ البداية</translation>
    </message>
    <message>
        <source>Start &amp;Time</source>
        <translation>وق&amp;ت البداية</translation>
    </message>
    <message>
        <source>&amp;End Date</source>
        <translation>تاريخ ال&amp;نهاية</translation>
    </message>
    <message>
        <source>En&amp;d Date</source>
        <translation>تاريخ ال&amp;نهاية</translation>
    </message>
    <message>
        <source>End Ti&amp;me</source>
        <translation>وقت النها&amp;ية</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>العناصر</translation>
    </message>
    <message>
        <source>No entry contains this.</source>
        <translation>لا يوجد عنصر يحتوي على هذا النص.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>None</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>Incident Report</source>
        <translation>تقرير الأحداث</translation>
    </message>
    <message>
        <source>List Incidents for a range of dates and readers</source>
        <translation>يعرض أحداث فترة معينة وقارئات معينة</translation>
    </message>
    <message>
        <source>Incident Report with Sites</source>
        <translation>تقرير الأحداث مع المواقع</translation>
    </message>
    <message>
        <source>List Incidents for a range of dates and readers with sites</source>
        <translation>يعرض أحداث فترة معينة وقارئات معينة مع المواقع</translation>
    </message>
    <message>
        <source>&amp;Readers:</source>
        <translation>ال&amp;قارئات:</translation>
    </message>
    <message>
        <source>&amp;Events:</source>
        <translation>الأ&amp;حداث:</translation>
    </message>
    <message>
        <source>Select Incident/s</source>
        <translation>اختيار الأحداث</translation>
    </message>
    <message>
        <source>%0:s [%1:s] -- %2:s</source>
        <translation>%0:s [%1:s] -- %2:s</translation>
    </message>
    <message>
        <source>There must be at least one reader selected to create a report</source>
        <translation>يجب اختيار قارئ واحد على الأقل لإنشاء التقرير</translation>
    </message>
    <message>
        <source>An event was deleted meanwhile. Please open the dialog of the report again.</source>
        <translation>حُذف أحد الأحداث في هذه الأثناء. يُرجى فتح نافذة التقرير من جديد.</translation>
    </message>
    <message>
        <source>No reader is defined.</source>
        <translation>لم يُعرَّف أي قارئ.</translation>
    </message>
    <message>
        <source>No event is defined. A master adds event books on the Setup page.</source>
        <translation>لم يُعرَّف أي حدث. يضيف المشرف دفاتر الأحداث في صفحة «الإعداد».</translation>
    </message>
    <message>
        <source>There must be at least one event selected to create a report</source>
        <translation>يجب اختيار حدث واحد على الأقل لإنشاء التقرير</translation>
    </message>
    <message>
        <source>No incidents of this type were recorded</source>
        <translation>لم يُسجَّل أي حدث من هذا النوع</translation>
    </message>
    <message>
        <source>%0:s, %1:s,  %2:s</source>
        <translation>%0:s، %1:s،  %2:s</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>من:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>إلى:</translation>
    </message>
    <message>
        <source>No event has the code %0:s.</source>
        <translation>لا يوجد حدث بالرمز %0:s.</translation>
    </message>
    <message>
        <source>There is no site named %0:s.</source>
        <translation>لا يوجد موقع باسم %0:s.</translation>
    </message>
    <message>
        <source>Select the date and other filters to create the Incident report</source>
        <translation>اختيار الفترة وعوامل التصفية لتقرير الأحداث</translation>
    </message>
    <message>
        <source>Incidents And Locations Report</source>
        <translation>تقرير الأحداث ونقاط المراقبة</translation>
    </message>
    <message>
        <source>Reader Name</source>
        <translation>اسم القارئ</translation>
    </message>
    <message>
        <source>Incident</source>
        <translation>الحدث</translation>
    </message>
    <message>
        <source>&amp;Print Preview</source>
        <translation>م&amp;عاينة الطباعة</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>طباعة</translation>
    </message>
    <message>
        <source>Export to PDF</source>
        <translation>تصدير إلى PDF</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>الصفحة الأولى</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>الصفحة السابقة</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>الصفحة التالية</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>الصفحة الأخيرة</translation>
    </message>
    <message>
        <source>Page number</source>
        <translation>رقم الصفحة</translation>
    </message>
    <message>
        <source>of</source>
        <translation>من</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>حجم العرض</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>الحجم الفعلي</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>ملاءمة العرض</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>الصفحة كاملة</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>The report could not be exported.</source>
        <translation>تعذّر تصدير التقرير.</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>تعذّرت طباعة التقرير.</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>ضبط القارئ</translation>
    </message>
    <message>
        <source>Date and Time</source>
        <translation>التاريخ والوقت</translation>
    </message>
    <message>
        <source>Sa&amp;me as PC Clock:</source>
        <translation>&amp;حسب ساعة الحاسوب:</translation>
    </message>
    <message>
        <source>C&amp;ustom Time</source>
        <translation>&amp;وقت آخر</translation>
    </message>
    <message>
        <source>Custom Time</source>
        <translation>وقت آخر</translation>
    </message>
    <message>
        <source>What the reader does at each touch</source>
        <translation>ما يفعله القارئ عند كل قراءة</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>ال&amp;تاريخ:</translation>
    </message>
    <message>
        <source>PC time</source>
        <translation>وقت الحاسوب</translation>
    </message>
    <message>
        <source>&amp;Automatically Set Time and Date to PC's settings when downloading Data</source>
        <translation>&amp;ضبط الوقت والتاريخ تلقائيًا حسب الحاسوب عند تنزيل البيانات</translation>
    </message>
    <message>
        <source>Reader Options</source>
        <translation>إشارات القارئ</translation>
    </message>
    <message>
        <source>&amp;Buzzer Enabled</source>
        <translation>تشغيل ال&amp;صافرة</translation>
    </message>
    <message>
        <source>&amp;LED Enabled</source>
        <translation>تشغيل ال&amp;مؤشر الضوئي</translation>
    </message>
    <message>
        <source>&amp;Vibration Enabled</source>
        <translation>تشغيل الاهت&amp;زاز</translation>
    </message>
    <message>
        <source>Buzzer Duration</source>
        <translation>مدة الصافرة</translation>
    </message>
    <message>
        <source>S&amp;hort</source>
        <translation>&amp;قصيرة</translation>
    </message>
    <message>
        <source>L&amp;ong</source>
        <translation>&amp;طويلة</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>إ&amp;رسال</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>ملاحظة:</translation>
    </message>
    <message>
        <source>If you select a custom date then this will only apply for one time</source>
        <translation>التاريخ الآخر يسري لهذه المرة فقط.</translation>
    </message>
    <message>
        <source>The automatic update feature only uses the PC's date and time</source>
        <translation>الضبط التلقائي يعتمد دائمًا على تاريخ الحاسوب ووقته.</translation>
    </message>
    <message>
        <source>You must select at least one of the reader options (Led, Buzzer or Vibration)</source>
        <translation>يجب اختيار إشارة واحدة على الأقل للقارئ (المؤشر الضوئي أو الصافرة أو الاهتزاز)</translation>
    </message>
    <message>
        <source>Reader update successful</source>
        <translation>تم ضبط القارئ بنجاح</translation>
    </message>
    <message>
        <source>Reader update failed.  Please try again.</source>
        <translation>تعذّر ضبط القارئ. يُرجى إعادة المحاولة.</translation>
    </message>
    <message>
        <source>The options were set, but the clock was not.</source>
        <translation>تم ضبط الخيارات، لكن الساعة لم تُضبط.</translation>
    </message>
    <message>
        <source>The clock was set, but the options were not.</source>
        <translation>تم ضبط الساعة، لكن الخيارات لم تُضبط.</translation>
    </message>
    <message>
        <source>Add New Reader</source>
        <translation>إضافة قارئ جديد</translation>
    </message>
    <message>
        <source>Add New Button</source>
        <translation>إضافة زر جديد</translation>
    </message>
    <message>
        <source>Button ID:</source>
        <translation>رمز الزر:</translation>
    </message>
    <message>
        <source>Button ID</source>
        <translation>رمز الزر</translation>
    </message>
    <message>
        <source>This Reader ID already exists!</source>
        <translation>هذا القارئ مسجَّل مسبقًا!</translation>
    </message>
    <message>
        <source>That key is already used!</source>
        <translation>هذا الرمز مستخدم مسبقًا!</translation>
    </message>
    <message>
        <source>&amp;Read ID</source>
        <translation>&amp;قراءة المعرّف</translation>
    </message>
    <message>
        <source>&amp;Manual Entry</source>
        <translation>إدخال &amp;يدوي</translation>
    </message>
    <message>
        <source>Manual Entry</source>
        <translation>إدخال يدوي</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>الا&amp;سم</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Not in use yet</source>
        <translation>غير مستخدم بعد</translation>
    </message>
    <message>
        <source>Reader ID Download Failed</source>
        <translation>تعذّرت قراءة معرّف القارئ</translation>
    </message>
    <message>
        <source>That name is already used.  Please enter another name</source>
        <translation>هذا الاسم مستخدم مسبقًا. يُرجى إدخال اسم آخر</translation>
    </message>
    <message>
        <source>You must enter a name for this item</source>
        <translation>يجب إدخال اسم</translation>
    </message>
    <message>
        <source>Enter the 6 digit button ID.  This is the last 6 digits visible on the front of the 'Dallas' Key. Valid characters are 0~9 and A~F.</source>
        <translation>يُرجى إدخال رمز الزر المكوّن من 6 خانات، وهي الخانات الست الأخيرة الظاهرة على وجه الزر. الخانات المقبولة: 0 إلى 9 وA إلى F.</translation>
    </message>
    <message>
        <source>Illegal Value</source>
        <translation>قيمة غير صالحة</translation>
    </message>
    <message>
        <source>Firmware Version is</source>
        <translation>إصدار البرنامج الثابت:</translation>
    </message>
    <message>
        <source>Reader Firmware Version Test</source>
        <translation>إصدار البرنامج الثابت للقارئ</translation>
    </message>
    <message>
        <source>&amp;Reader Options</source>
        <translation>&amp;خيارات القارئ</translation>
    </message>
    <message>
        <source>Reader Firmware Version</source>
        <translation>إصدار البرنامج الثابت للقارئ</translation>
    </message>
    <message>
        <source>The reader did not report its firmware version.</source>
        <translation>لم يذكر القارئ إصدار برنامجه الثابت.</translation>
    </message>
    <message>
        <source>Put the reader into the docking station and read its ID.</source>
        <translation>يوضع القارئ في محطة الإرساء ثم يُقرأ معرّفه.</translation>
    </message>
    <message>
        <source>Touch the reader in the docking station with the new button, or enter its ID by hand.</source>
        <translation>يُلمس القارئ الموجود في محطة الإرساء بالزر الجديد، أو يُدخل الرمز يدويًا.</translation>
    </message>
    <message>
        <source>Only the master may do this.</source>
        <translation>هذا الإجراء متاح للمشرف فقط.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>إ&amp;ضافة</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>تع&amp;ديل</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;حذف</translation>
    </message>
    <message>
        <source>Tour &amp;Copy</source>
        <translation>&amp;نسخ الجولة</translation>
    </message>
    <message>
        <source>Opens the selected row (double click)</source>
        <translation>يفتح السطر المحدد (نقر مزدوج)</translation>
    </message>
    <message>
        <source>Adds a new row</source>
        <translation>يضيف سطرًا جديدًا</translation>
    </message>
    <message>
        <source>Deletes the selected row (Del)</source>
        <translation>يحذف السطر المحدد (Del)</translation>
    </message>
    <message>
        <source>Makes a new tour as a copy of another</source>
        <translation>ينشئ جولة جديدة نسخةً من جولة أخرى</translation>
    </message>
    <message>
        <source>Definitions</source>
        <translation>التعريفات</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>المواقع</translation>
    </message>
    <message>
        <source>Event Books</source>
        <translation>دفاتر الأحداث</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>الجولات</translation>
    </message>
    <message>
        <source>Readers</source>
        <translation>القارئات</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>الموقع</translation>
    </message>
    <message>
        <source>S&amp;ite</source>
        <translation>الم&amp;وقع</translation>
    </message>
    <message>
        <source>Event Book</source>
        <translation>دفتر الأحداث</translation>
    </message>
    <message>
        <source>User Group</source>
        <translation>مجموعة المستخدمين</translation>
    </message>
    <message>
        <source>Tour Name</source>
        <translation>اسم الجولة</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>وقت البداية</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>الأزرار</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>تعديل</translation>
    </message>
    <message>
        <source>Edit Reader</source>
        <translation>تعديل القارئ</translation>
    </message>
    <message>
        <source>Edit Time</source>
        <translation>تعديل الوقت</translation>
    </message>
    <message>
        <source>&amp;Edit Time</source>
        <translation>تعديل ال&amp;وقت</translation>
    </message>
    <message>
        <source>&amp;Minutes since the previous point</source>
        <translation>ال&amp;دقائق منذ النقطة السابقة</translation>
    </message>
    <message>
        <source>Select Tour to copy</source>
        <translation>اختيار الجولة المراد نسخها</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>الاس&amp;م:</translation>
    </message>
    <message>
        <source>Descri&amp;ption :</source>
        <translation>الو&amp;صف:</translation>
    </message>
    <message>
        <source>Tour Start Ti&amp;me:</source>
        <translation>&amp;بداية الجولة:</translation>
    </message>
    <message>
        <source>To&amp;lerance (minutes):</source>
        <translation>&amp;هامش السماح (دقائق):</translation>
    </message>
    <message>
        <source>S&amp;ite:</source>
        <translation>المو&amp;قع:</translation>
    </message>
    <message>
        <source>A&amp;vailable Locations</source>
        <translation>&amp;نقاط المراقبة المتاحة</translation>
    </message>
    <message>
        <source>Available Locations</source>
        <translation>نقاط المراقبة المتاحة</translation>
    </message>
    <message>
        <source>Current T&amp;our Locations</source>
        <translation>نقا&amp;ط الجولة الحالية</translation>
    </message>
    <message>
        <source>Current Tour Locations</source>
        <translation>نقاط الجولة الحالية</translation>
    </message>
    <message>
        <source>&amp;Add -&gt;</source>
        <translation>إ&amp;ضافة -&gt;</translation>
    </message>
    <message>
        <source>&lt;- &amp;Remove</source>
        <translation>&lt;- إ&amp;زالة</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>إلى أ&amp;على</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>إلى أ&amp;سفل</translation>
    </message>
    <message>
        <source>Rese&amp;t</source>
        <translation>إف&amp;راغ</translation>
    </message>
    <message>
        <source>Removes all points from the tour</source>
        <translation>يزيل كل النقاط من الجولة</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;حفظ</translation>
    </message>
    <message>
        <source>Customize Tour Sequence</source>
        <translation>تحديد مسار الجولة</translation>
    </message>
    <message>
        <source>Location Name</source>
        <translation>اسم النقطة</translation>
    </message>
    <message>
        <source>Desc</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>نقطة المراقبة</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>نقطة الم&amp;راقبة</translation>
    </message>
    <message>
        <source>Add New User</source>
        <translation>إضافة مستخدم جديد</translation>
    </message>
    <message>
        <source>Add New Location</source>
        <translation>إضافة نقطة مراقبة جديدة</translation>
    </message>
    <message>
        <source>Add New Event</source>
        <translation>إضافة حدث جديد</translation>
    </message>
    <message>
        <source>No Item is selected</source>
        <translation>لم يُحدَّد أي عنصر</translation>
    </message>
    <message>
        <source>No sites yet. A site is a place with location buttons. Press Add for a new one, then Edit to give it its buttons.</source>
        <translation>لا توجد مواقع بعد. الموقع مكان له أزرار لنقاط المراقبة. يُضاف موقع جديد بالزر «إضافة»، ثم تُضاف أزراره بالزر «تعديل».</translation>
    </message>
    <message>
        <source>No event books yet. The buttons of an event book stand for incidents. Press Add for a new one, then Edit to give it its buttons.</source>
        <translation>لا توجد دفاتر أحداث بعد. كل زر في دفتر الأحداث يمثل حدثًا. يُضاف دفتر جديد بالزر «إضافة»، ثم تُضاف أزراره بالزر «تعديل».</translation>
    </message>
    <message>
        <source>No tours yet. Press Add for a new one, then Edit to choose its locations.</source>
        <translation>لا توجد جولات بعد. تُضاف جولة جديدة بالزر «إضافة»، ثم تُختار نقاطها بالزر «تعديل».</translation>
    </message>
    <message>
        <source>No readers yet. Put a reader into the docking station and press Add. Without a docking station no reader can be added.</source>
        <translation>لا توجد قارئات بعد. يوضع القارئ في محطة الإرساء ثم يُستخدم الزر «إضافة». لا يمكن إضافة قارئ دون محطة إرساء.</translation>
    </message>
    <message>
        <source>No buttons yet. Press Add, then touch the reader in the docking station with a button.</source>
        <translation>لا توجد أزرار بعد. يُستخدم الزر «إضافة»، ثم يُلمس القارئ الموجود في محطة الإرساء بالزر الجديد.</translation>
    </message>
    <message>
        <source>No buttons yet. A new button is read at the docking station, which is not connected.</source>
        <translation>لا توجد أزرار بعد. يُقرأ الزر الجديد في محطة الإرساء، وهي غير متصلة.</translation>
    </message>
    <message>
        <source>This site has no location buttons yet. Add them on the Setup page: select the site and press Edit.</source>
        <translation>لا توجد نقاط مراقبة لهذا الموقع بعد. تُضاف في صفحة «الإعداد» بتحديد الموقع ثم استخدام الزر «تعديل».</translation>
    </message>
    <message>
        <source>The tour has no points yet. Select a location in the other list and press Add, in the order of the tour.</source>
        <translation>لا توجد نقاط في الجولة بعد. تُحدَّد نقطة مراقبة في القائمة الأخرى ثم يُستخدم الزر «إضافة»، بترتيب الجولة.</translation>
    </message>
    <message>
        <source>Shows only the rows that contain this text (Ctrl+F).</source>
        <translation>يعرض الأسطر التي تحتوي على هذا النص فقط (Ctrl+F).</translation>
    </message>
    <message>
        <source>A touch that is early or late by no more minutes than this counts as on time.</source>
        <translation>تُعدّ القراءة في الموعد إذا لم يتجاوز تبكيرها أو تأخرها هذا العدد من الدقائق.</translation>
    </message>
    <message>
        <source>For the first point: the minutes since the start of the tour.</source>
        <translation>للنقطة الأولى: الدقائق منذ بداية الجولة.</translation>
    </message>
    <message>
        <source>"%0:s" will be lost.</source>
        <translation>سيُفقد «%0:s».</translation>
    </message>
    <message>
        <source>"%0:s" and its buttons will be lost.</source>
        <translation>سيُفقد «%0:s» مع أزراره.</translation>
    </message>
    <message>
        <source>"%0:s" and its points will be lost.</source>
        <translation>ستُفقد «%0:s» مع نقاطها.</translation>
    </message>
    <message>
        <source>"%0:s" will be lost. Touches that are already downloaded are kept.</source>
        <translation>سيُفقد «%0:s». تبقى القراءات التي نُزِّلت من قبل محفوظة.</translation>
    </message>
    <message>
        <source>The name could not be saved. Nothing was changed.</source>
        <translation>تعذّر حفظ الاسم. لم يتغير شيء.</translation>
    </message>
    <message>
        <source>The password is empty. Anyone could log in without one.</source>
        <translation>كلمة المرور فارغة، ويمكن لأي شخص تسجيل الدخول من دونها.</translation>
    </message>
    <message>
        <source>Do you want to save it?</source>
        <translation>هل تريد حفظها؟</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item?</source>
        <translation>هل تريد بالتأكيد حذف هذا العنصر؟</translation>
    </message>
    <message>
        <source>That name is already used.  Please enter another name.</source>
        <translation>هذا الاسم مستخدم مسبقًا. يُرجى إدخال اسم آخر.</translation>
    </message>
    <message>
        <source>You must enter a name for this group</source>
        <translation>يجب إدخال اسم لهذه المجموعة</translation>
    </message>
    <message>
        <source>A name or description cannot contain line breaks or other control characters.</source>
        <translation>لا يجوز أن يحتوي الاسم أو الوصف على فواصل أسطر أو رموز تحكم أخرى.</translation>
    </message>
    <message>
        <source>The tour could not be saved. Nothing was changed.</source>
        <translation>تعذّر حفظ الجولة. لم يتغير شيء.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Discard them?</source>
        <translation>لم تُحفظ التغييرات. هل تريد تجاهلها؟</translation>
    </message>
    <message>
        <source>Are you sure you want to delete it?</source>
        <translation>هل تريد بالتأكيد حذف هذه المجموعة؟</translation>
    </message>
    <message>
        <source>The selected group contains sub-items</source>
        <translation>المجموعة المحددة تحتوي على أزرار.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this reader?</source>
        <translation>هل تريد بالتأكيد حذف هذا القارئ؟</translation>
    </message>
    <message>
        <source>You must add at least one location before you can define a tour</source>
        <translation>يجب إضافة نقطة مراقبة واحدة على الأقل قبل تحديد جولة</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this tour?</source>
        <translation>هل تريد بالتأكيد حذف هذه الجولة؟</translation>
    </message>
    <message>
        <source>The selected Tour contains data.</source>
        <translation>الجولة المحددة تحتوي على بيانات.</translation>
    </message>
    <message>
        <source>Cannot find any Tour Points to copy</source>
        <translation>لا توجد في الجولة نقاط لنسخها</translation>
    </message>
    <message>
        <source>Cannot assign two sequential tour points with the same location</source>
        <translation>لا يجوز أن تتكرر نقطة المراقبة نفسها في نقطتين متتاليتين من الجولة</translation>
    </message>
    <message>
        <source>The tolerance value can only range from 0 to 59 minutes</source>
        <translation>يجب أن يكون هامش السماح بين 0 و59 دقيقة</translation>
    </message>
    <message>
        <source>The total tour time can only range from 0 to 1439 minutes</source>
        <translation>يجب أن تكون مدة الجولة كلها بين 0 و1439 دقيقة</translation>
    </message>
    <message>
        <source>Only valid numbers from 0 to 1439 can be entered</source>
        <translation>لا تُقبل إلا الأعداد من 0 إلى 1439</translation>
    </message>
    <message>
        <source>The docking station is no longer connected. Enter the ID by hand, or go to the home page to connect again.</source>
        <translation>لم تعد محطة الإرساء متصلة. يُرجى إدخال الرمز يدويًا، أو الانتقال إلى الصفحة الرئيسية لإعادة الاتصال.</translation>
    </message>
    <message>
        <source>&amp;Archive Events</source>
        <translation>أر&amp;شفة الأحداث</translation>
    </message>
    <message>
        <source>&amp;Backup</source>
        <translation>&amp;نسخ احتياطي</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>ا&amp;ستعادة</translation>
    </message>
    <message>
        <source>Company &amp;Info</source>
        <translation>بيانات ال&amp;شركة</translation>
    </message>
    <message>
        <source>&amp;About </source>
        <translation>&amp;حول </translation>
    </message>
    <message>
        <source>Company Info</source>
        <translation>بيانات الشركة</translation>
    </message>
    <message>
        <source>These lines are printed at the head of each report. After the next start, only the first 50 characters of a line are printed.</source>
        <translation>تُطبع هذه الأسطر في رأس كل تقرير. وبعد التشغيل التالي لا يُطبع من كل سطر إلا أول 50 حرفًا.</translation>
    </message>
    <message>
        <source>Line &amp;1:</source>
        <translation>السطر &amp;1:</translation>
    </message>
    <message>
        <source>Line &amp;2:</source>
        <translation>السطر &amp;2:</translation>
    </message>
    <message>
        <source>Line &amp;3:</source>
        <translation>السطر &amp;3:</translation>
    </message>
    <message>
        <source>Line &amp;4:</source>
        <translation>السطر &amp;4:</translation>
    </message>
    <message>
        <source>The company info cannot be saved. This file cannot be written:</source>
        <translation>تعذّر حفظ بيانات الشركة. لا يمكن الكتابة في هذا الملف:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول البرنامج</translation>
    </message>
    <message>
        <source>You may use, change and pass on this program, as long as the text of the License stays with it.</source>
        <translation>يُسمح باستخدام هذا البرنامج وتعديله وتوزيعه ما دام نص الرخصة مرفقًا به.</translation>
    </message>
    <message>
        <source>It comes without any warranty.</source>
        <translation>ويُقدَّم دون أي ضمان.</translation>
    </message>
    <message>
        <source>For a description of the program, choose Help, Contents.</source>
        <translation>يوجد وصف للبرنامج في القائمة «مساعدة»، «المحتويات».</translation>
    </message>
    <message>
        <source>If something does not work, report it to the person who looks after this installation. Give the version and the build shown above, and send this file:</source>
        <translation>إذا لم يعمل شيء كما ينبغي فيُرجى إبلاغ المسؤول عن هذا النظام، مع ذكر رقم الإصدار ورقم البناء (Build) المبيّنين أعلاه، وإرسال هذا الملف:</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>جهة الاتصال</translation>
    </message>
    <message>
        <source>WK3_ENG.HLP</source>
        <translation>WK3_ENG.HLP</translation>
    </message>
    <message>
        <source>This folder does not exist. Please choose another one.</source>
        <translation>هذا المجلد غير موجود. يُرجى اختيار مجلد آخر.</translation>
    </message>
    <message>
        <source>A file name can have at most 100 characters.</source>
        <translation>لا يجوز أن يتجاوز اسم الملف 100 حرف.</translation>
    </message>
    <message>
        <source>Select backup destination</source>
        <translation>اختيار وجهة النسخة الاحتياطية</translation>
    </message>
    <message>
        <source>Database Files (*.mdb)</source>
        <translation>ملفات قاعدة البيانات (*.mdb)</translation>
    </message>
    <message>
        <source>That filename is already in use. Please choose another filename</source>
        <translation>اسم الملف هذا مستخدم مسبقًا. يُرجى اختيار اسم آخر</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>نسخ احتياطي</translation>
    </message>
    <message>
        <source>The database is being copied and checked.</source>
        <translation>جارٍ نسخ قاعدة البيانات والتحقق من النسخة.</translation>
    </message>
    <message>
        <source>Successfully copied the database to :</source>
        <translation>نُسخت قاعدة البيانات بنجاح إلى:</translation>
    </message>
    <message>
        <source>The file was changed while it was read.</source>
        <translation>تغيّر الملف أثناء قراءته.</translation>
    </message>
    <message>
        <source>The copy is damaged: %0:s</source>
        <translation>النسخة تالفة: %0:s</translation>
    </message>
    <message>
        <source>The copy does not have the rows of the database.</source>
        <translation>لا تحتوي النسخة على سجلات قاعدة البيانات نفسها.</translation>
    </message>
    <message>
        <source>The database was not copied.</source>
        <translation>لم تُنسخ قاعدة البيانات.</translation>
    </message>
    <message>
        <source>The database itself is damaged.</source>
        <translation>قاعدة البيانات نفسها تالفة.</translation>
    </message>
    <message>
        <source>The program itself uses this file. Please choose another filename.</source>
        <translation>البرنامج نفسه يستخدم هذا الملف. يُرجى اختيار اسم ملف آخر.</translation>
    </message>
    <message>
        <source>The file or its folder does not exist.</source>
        <translation>الملف أو مجلده غير موجود.</translation>
    </message>
    <message>
        <source>Removed:</source>
        <translation>حُذفت الملفات:</translation>
    </message>
    <message>
        <source>Not removed:</source>
        <translation>لم تُحذف الملفات:</translation>
    </message>
    <message>
        <source>A program was killed while it wrote to this file. Its journal is still beside it.</source>
        <translation>أُنهي برنامج قسرًا أثناء الكتابة في هذا الملف، ولا يزال ملف اليومية الخاص به بجانبه.</translation>
    </message>
    <message>
        <source>You do not have permission to read this file.</source>
        <translation>لا توجد صلاحية لقراءة هذا الملف.</translation>
    </message>
    <message>
        <source>It is not a database of this program, or it is damaged.</source>
        <translation>الملف ليس قاعدة بيانات لهذا البرنامج، أو أنه تالف.</translation>
    </message>
    <message>
        <source>The database is damaged:</source>
        <translation>قاعدة البيانات تالفة:</translation>
    </message>
    <message>
        <source>Missing:</source>
        <translation>مفقود:</translation>
    </message>
    <message>
        <source>Buttons whose group does not exist:</source>
        <translation>أزرار مجموعتها غير موجودة:</translation>
    </message>
    <message>
        <source>Tour points whose tour does not exist:</source>
        <translation>نقاط جولة لا توجد جولتها:</translation>
    </message>
    <message>
        <source>Tour points whose button does not exist:</source>
        <translation>نقاط جولة لا يوجد زرها:</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>حفظ باسم</translation>
    </message>
    <message>
        <source>Comma Delimited Text (*.csv)</source>
        <translation>نص مفصول بفواصل (*.csv)</translation>
    </message>
    <message>
        <source>Archive Events</source>
        <translation>أرشفة الأحداث</translation>
    </message>
    <message>
        <source>Choose the first and the last day. Their events are moved into a file and deleted from the database. They cannot be brought back from the file.</source>
        <translation>يُرجى اختيار أول يوم وآخر يوم. تُنقل أحداث هذه الفترة إلى ملف وتُحذف من قاعدة البيانات، ولا يمكن إرجاعها من الملف.</translation>
    </message>
    <message>
        <source>Warning: This action will permanently delete the events from the database.</source>
        <translation>تحذير: يحذف هذا الإجراء الأحداث من قاعدة البيانات نهائيًا.</translation>
    </message>
    <message>
        <source>Select location of backup database file</source>
        <translation>اختيار النسخة الاحتياطية لقاعدة البيانات</translation>
    </message>
    <message>
        <source>That filename cannot be found. Please choose another filename</source>
        <translation>لم يُعثر على ملف بهذا الاسم. يُرجى اختيار ملف آخر</translation>
    </message>
    <message>
        <source>This file is the database itself. Please choose a backup of it.</source>
        <translation>هذا الملف هو قاعدة البيانات نفسها. يُرجى اختيار نسخة احتياطية منها.</translation>
    </message>
    <message>
        <source>Warning: This action will delete the existing database. You will loose ALL data in the existing database.</source>
        <translation>تحذير: يحذف هذا الإجراء قاعدة البيانات الحالية، وستُفقد جميع بياناتها.</translation>
    </message>
    <message>
        <source>Are you sure you want to continue?</source>
        <translation>هل تريد المتابعة بالتأكيد؟</translation>
    </message>
    <message>
        <source>There are no stored events within the dates you entered.</source>
        <translation>لا توجد أحداث محفوظة في هذه الفترة.</translation>
    </message>
    <message>
        <source>File Save Error: Archive Not Saved.  Please Try again.</source>
        <translation>خطأ في حفظ الملف: لم يُحفظ الأرشيف. يُرجى إعادة المحاولة.</translation>
    </message>
    <message>
        <source>Events Archived Successfully</source>
        <translation>تمت أرشفة الأحداث بنجاح</translation>
    </message>
    <message>
        <source>Number of Events =</source>
        <translation>عدد الأحداث:</translation>
    </message>
    <message>
        <source>FileName = </source>
        <translation>اسم الملف: </translation>
    </message>
    <message>
        <source>The events are written to the file and then deleted from the database.</source>
        <translation>تُكتب الأحداث في الملف ثم تُحذف من قاعدة البيانات.</translation>
    </message>
    <message>
        <source>%0:s events were written, but the database deleted %1:s. Nothing was archived.</source>
        <translation>كُتبت الأحداث وعددها %0:s، لكن قاعدة البيانات حذفت %1:s. لم تتم أرشفة أي شيء.</translation>
    </message>
    <message>
        <source>The events were written to %0:s, but they are still in the database: %1:s</source>
        <translation>كُتبت الأحداث في الملف %0:s، لكنها لا تزال في قاعدة البيانات: %1:s</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>The backup is being copied and checked.</source>
        <translation>جارٍ نسخ النسخة الاحتياطية والتحقق منها.</translation>
    </message>
    <message>
        <source>The database is in use. Waiting until it is free.</source>
        <translation>قاعدة البيانات قيد الاستخدام. يجري الانتظار حتى تصبح متاحة.</translation>
    </message>
    <message>
        <source>Successfully copied the database</source>
        <translation>نُسخت قاعدة البيانات بنجاح</translation>
    </message>
    <message>
        <source>Warning : The program will now close.</source>
        <translation>تحذير: سيُغلق البرنامج الآن.</translation>
    </message>
    <message>
        <source>Please restart the program to continue.</source>
        <translation>يُرجى إعادة تشغيل البرنامج للمتابعة.</translation>
    </message>
    <message>
        <source>The database was not restored. It is as it was before.</source>
        <translation>لم تُستعد قاعدة البيانات، وبقيت كما كانت.</translation>
    </message>
    <message>
        <source>The chosen file is not a database of this program.</source>
        <translation>الملف المختار ليس قاعدة بيانات لهذا البرنامج.</translation>
    </message>
    <message>
        <source>The chosen file is not a database of this program, its password is different, or it is damaged.</source>
        <translation>الملف المختار ليس قاعدة بيانات لهذا البرنامج، أو كلمة مروره مختلفة، أو أنه تالف.</translation>
    </message>
    <message>
        <source>The chosen file is not a complete database of this program. It lacks %0:s.</source>
        <translation>الملف المختار ليس قاعدة بيانات كاملة لهذا البرنامج. ينقصه: %0:s.</translation>
    </message>
    <message>
        <source>The chosen file is damaged: %0:s</source>
        <translation>الملف المختار تالف: %0:s</translation>
    </message>
    <message>
        <source>Another program has used the database meanwhile. Please try again.</source>
        <translation>استخدم برنامج آخر قاعدة البيانات في هذه الأثناء. يُرجى إعادة المحاولة.</translation>
    </message>
    <message>
        <source>The database was restored, but the disk reported an error. Please check it.</source>
        <translation>استُعيدت قاعدة البيانات، لكن القرص أبلغ عن خطأ. يُرجى التحقق منه.</translation>
    </message>
</context>
</TS>
