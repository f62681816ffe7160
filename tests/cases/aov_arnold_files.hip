set -g _HIP_SAVEVERSION = '19.5.303'
out/arnold1.parm {
ar_picture	[ 0	locks=0 ]	(	"$HIP/render/beauty.$F4.exr"	)
ar_aov_separate_file2	[ 0	locks=0 ]	(	"/r/aov/diff.$F.exr"	)
ar_aov_separate_file1	[ 0	locks=0 ]	(	"$HIP/aov/refl.$F4.exr"	)
ar_aov_separate_file3	[ 0	locks=0 ]	(	""	)
ar_aov_separate_file25	[ 0	locks=0 ]	(	"/r/aov/never.exr"	)
}
