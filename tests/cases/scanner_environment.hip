out/env.parm {
ar_picture	[ 0	locks=0 ]	(	"$HIP/p/env.$F4.exr"	)
ar_aov_separate_file1	[ 0	locks=0 ]	(	"/e/${HIPTEST_LIMIT}_x.exr"	)
ar_aov_separate_file2	[ 0	locks=0 ]	(	"/e/${HIPTEST_OVER}_x.exr"	)
ar_aov_separate_file3	[ 0	locks=0 ]	(	"/e/${hiptest_lower}_x.exr"	)
ar_aov_separate_file4	[ 0	locks=0 ]	(	"/e/${XHIPTEST}_x.exr"	)
ar_aov_separate_file5	[ 0	locks=0 ]	(	"/e/${HIPTEST_EQUALS}_x.exr"	)
}
