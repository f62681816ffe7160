fplayback -i on -r off -f 1 -e 100 -h 1 -t 0 -a on -k on -s 1
frange 1 100
set -g ACTIVETAKE = 'Main'
set -g JOB = '/projects/demo'
set -g HtoA_KickVersion = '7.2.1.1'
set -g _HIP_SAVEVERSION = '19.5.303'
take name Main kids 0
obj/cam1.parm {
version 0.8
res	[ 0	locks=0 ]	(	1920	1080	)
aspect	[ 0	locks=0 ]	(	1	)
}
out/arnold1.parm {
version 0.8
trange	[ 0	locks=0 ]	(	"normal"	)
f	[ 0	locks=0 ]	(	1	100	1	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
ar_picture	[ 0	locks=0 ]	(	$HIP/render/$HIPNAME.$OS.$F4.exr	)
ar_aov_separate1	[ 0	locks=0 ]	(	"on"	)
ar_aov_separate_file1	[ 0	locks=0 ]	(	$HIP/render/aov/$HIPNAME.diffuse.$F4.exr	)
ar_ass_export_enable	[ 0	locks=0 ]	(	"on"	)
ar_ass_file	[ 0	locks=0 ]	(	$HIP/ass/$HIPNAME.$OS.$F4.ass	)
}
